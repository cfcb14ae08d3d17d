#include "tests/workbench/script/script_fixture.h"
#include "workbench/base/input_error.h"
#include "workbench/script/calls.h"

namespace workbench::script {

namespace {

class RecordCallsTest : public ScriptTest {};

TEST_F(RecordCallsTest, JournalOfAKindForgetsOnlyThatKind) {
    run("wb.new('A') wb.journal() wb.set('TILEMODE', 0) "
        "assert(wb.journal('var')[1].name == 'TILEMODE') assert(#wb.journal('var') == 0) "
        "local rest = wb.journal() assert(#rest > 0) "
        "for _, record in ipairs(rest) do assert(record.kind ~= 'var') end "
        "assert(#wb.journal() == 0)");
}

TEST_F(RecordCallsTest, RecordHasTimeKindAndFields) {
    run("wb.new('A') wb.wait(40) wb.set('TILEMODE', 0) local change = wb.journal('var')[1] "
        "assert(change.t == 40 and change.kind == 'var' and change.name == 'TILEMODE') "
        "assert(change.old == 1 and change.new == 0)");
}

TEST_F(RecordCallsTest, SentTextsAndJournalForgetApart) {
    runOnDashboard(R"(
        wb.journal() wb.sent()
        wb.item("ID_DefaultLighting"):click()
        wb.journal()
        local sent = wb.sent()
        assert(#sent == 1 and #wb.sent() == 0)
        assert(sent[1].text:find("^_defaultlighting\n") and sent[1].way == "do_cmd")
        assert(sent[1].flag == 0 and sent[1].document == "A")
        wb.item("ID_DefaultLighting"):click()
        wb.sent()
        assert(wb.journal("command")[1].way == "do_cmd")
    )");
}

TEST_F(RecordCallsTest, TypedTextIsNotSent) {
    run("wb.type('LINE\\n\\27') assert(#wb.sent() == 0)");
}

TEST_F(RecordCallsTest, PictureNeedsAWindow) {
    EXPECT_EQ(complaintOf("wb.snapshot('a.png')"),
              "wb.snapshot: no picture of \"a.png\": pictures need the desktop, and this "
              "workbench has no window");
}

TEST_F(RecordCallsTest, PictureIsTakenByTheWindow) {
    std::vector<std::string> taken;
    workbench().setPhotographer(
        [&taken](const std::filesystem::path& file) { taken.push_back(file.string()); });
    run("wb.snapshot('a.png')");
    EXPECT_EQ(taken, std::vector<std::string>{"a.png"});
    workbench().setPhotographer([](const std::filesystem::path& file) {
        throw InputError(file.string(), "no picture can be written there");
    });
    EXPECT_EQ(complaintOf("wb.snapshot('/no/a.png')"),
              "wb.snapshot: /no/a.png: no picture can be written there");
}

}  // namespace

}  // namespace workbench::script
