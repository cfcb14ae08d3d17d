#include "core/module_call.h"
#include "module/control_manager.h"
#include "module/module.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/noting_action.h"
#include "workbench/editor/editor.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using Notes = std::vector<std::string>;

/// The module's own manager, with a command in progress.
class QuietMomentsTest : public PaletteTest {
protected:
    void SetUp() override {
        load();
        bench().editor().beginCommand(L"LINE");
    }
    void queue(const std::string& name, std::function<void()> act = {}) {
        controlManager()->runWhenQuiescent(
            std::make_unique<support::NotingAction>(m_notes, name, std::move(act)));
    }

    Notes m_notes;
};

TEST_F(QuietMomentsTest, ActionThatHasItsDocumentClosedIsTheLastToRun) {
    queue("A", [this] {
        controlManager()->removeDocumentReactor(bench().editor().documents().current());
    });
    queue("B");
    bench().editor().pump();
    EXPECT_EQ(m_notes, (Notes{"run A", "end B", "end A"}));
}

TEST_F(QuietMomentsTest, ModuleThatIsUnloadedWhileTheCommandIsCancelledRunsNothing) {
    const auto watch = bench().journal().addListener([](const workbench::JournalRecord& record) {
        if (record.field("name") == workbench::Value("VxApDocManager::sendToCommandLine"))
            unloadModule();
    });
    {
        const ModuleCall call;  // as in a handler of a tool's click
        queue("A");
        EXPECT_EQ(controlManager(), nullptr);
    }
    EXPECT_EQ(m_notes, Notes{"end A"});
    bench().editor().pump();
    EXPECT_EQ(m_notes, Notes{"end A"});
}

}  // namespace
