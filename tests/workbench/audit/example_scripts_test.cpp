#include "tests/workbench/script/script_fixture.h"
#include "workbench/base/json_parser.h"

#include <algorithm>
#include <vector>

namespace workbench::script {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> exampleScripts() {
    std::vector<fs::path> files;
    for (const auto& entry :
         fs::directory_iterator(fs::path(PROJECT_SOURCE_ROOT) / "examples" / "scripts"))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

/// Has a script compare what is on show before it unloads the module; on one line, so that the
/// script's own lines keep their numbers.
constexpr const char* kAuditBeforeUnload =
    "local unload = wb.unload; "
    "wb.unload = function() "
    "wb.wait(1000) wb.idle(2) "
    "for _, found in ipairs(wb.audit()) do error(found.control .. ': ' .. found.field .. ' shows ' "
    ".. found.shown .. ' for ' .. found.expected) end "
    "return unload() end ";
constexpr const char* kAuditAtTheEnd = "\nif wb.panel('Layers') then wb.unload() end\n";

class ExampleScriptTest : public ScriptTest, public testing::WithParamInterface<fs::path> {};

TEST_P(ExampleScriptTest, LeavesNothingOnShowThatIsNotSo) {
    run(kAuditBeforeUnload + readWholeFile(GetParam()) + kAuditAtTheEnd);
}

std::string nameOfScript(const testing::TestParamInfo<fs::path>& script) {
    return script.param.stem().string();
}

INSTANTIATE_TEST_SUITE_P(All, ExampleScriptTest, testing::ValuesIn(exampleScripts()), nameOfScript);

}  // namespace
}  // namespace workbench::script
