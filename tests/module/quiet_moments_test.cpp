#include "core/module_call.h"
#include "module/control_manager.h"
#include "module/module.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/editor/editor.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using Notes = std::vector<std::string>;

/// Notes its run and its end, and can act while it runs.
class Noting final : public QuiescentAction {
public:
    Noting(Notes& notes, std::string name, std::function<void()> act)
        : m_notes(notes),
          m_name(std::move(name)),
          m_act(std::move(act)) {}
    ~Noting() override { m_notes.push_back("end " + m_name); }
    void run() override {
        m_notes.push_back("run " + m_name);
        if (m_act)
            m_act();
    }

private:
    Notes& m_notes;
    std::string m_name;
    std::function<void()> m_act;
};

/// The module's own manager, with a command in progress.
class QuietMomentsTest : public PaletteTest {
protected:
    void SetUp() override {
        load();
        bench().editor().beginCommand(L"LINE");
    }
    void queue(const std::string& name, std::function<void()> act = {}) {
        controlManager()->runWhenQuiescent(std::make_unique<Noting>(m_notes, name, std::move(act)));
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
