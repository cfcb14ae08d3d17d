#include "controls/cmd_util.h"

#include "tests/palette/palette_fixture.h"
#include "tests/support/call_lines.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/zorq.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using workbench::Value;

class CmdUtilTest : public PaletteTest {
protected:
    void SetUp() override { load(); }

    /// The last sending to the command line: text, and whether it activates, wraps up, echoes.
    struct Line {
        std::string text;
        bool activate;
        bool wrapUp;
        bool echo;
        friend bool operator==(const Line&, const Line&) = default;
    };
    std::vector<Line> lines() {
        std::vector<Line> found;
        for (const workbench::JournalRecord& record : bench().journal().take("call")) {
            if (record.field("name") != Value("VxApDocManager::sendToCommandLine"))
                continue;
            const auto& args = record.field("args").asList();
            found.push_back({args.at(1).asString(), args.at(2) == Value(true),
                             args.at(3) == Value(true), args.at(4) == Value(true)});
        }
        return found;
    }
    /// The host calls of some names since the last look, with their arguments.
    std::vector<std::string> calls(const std::vector<std::string_view>& names) {
        return support::callLines(bench().journal().take("call"), names);
    }
    void blur() { AfxGetMainWnd()->SetFocus(); }
    void set(const wchar_t* name, int value) { ASSERT_TRUE(bench().editor().set(name, value)); }
    void endCommands() { bench().editor().pump(); }
};

using Lines = std::vector<std::string>;

// Stopping what runs

TEST_F(CmdUtilTest, NothingIsStoppedWhileNoCommandRuns) {
    blur();
    forget();
    EXPECT_FALSE(commandStopped());
    EXPECT_TRUE(lines().empty());
    EXPECT_NE(CWnd::GetFocus(), vxedGetZorqDockCmdLine());
}

TEST_F(CmdUtilTest, RunningCommandIsToldToStopAtTheCommandLine) {
    bench().editor().beginCommand(L"LINE");
    blur();
    forget();
    EXPECT_TRUE(commandStopped());
    const auto told = lines();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0], (Line{"\x03\x03", true, false, true}));
    EXPECT_EQ(CWnd::GetFocus(), vxedGetZorqDockCmdLine());
    EXPECT_NE(bench().editor().read(L"CMDACTIVE"), Value(0)) << "it has not stopped yet";
    endCommands();
    EXPECT_EQ(bench().editor().read(L"CMDACTIVE"), Value(0));
}

TEST_F(CmdUtilTest, CommandLineHasTheFocusBeforeACancelOrACommandIsSent) {
    const std::vector<std::string_view> names{"CWnd::SetFocus",
                                              "VxApDocManager::sendToCommandLine"};
    bench().editor().beginCommand(L"LINE");
    blur();
    forget();
    commandStopped();
    const Lines cancelled = calls(names);
    ASSERT_EQ(cancelled.size(), 2U);
    EXPECT_EQ(cancelled[0].find("CWnd::SetFocus"), 0U);
    endCommands();
    blur();
    forget();
    sendHostCommand(L"_sunstatus");
    const Lines sent = calls(names);
    ASSERT_EQ(sent.size(), 2U);
    EXPECT_EQ(sent[0].find("CWnd::SetFocus"), 0U);
}

TEST_F(CmdUtilTest, UnreadableActivityCountsAsRest) {
    bench().editor().beginCommand(L"LINE");
    bench().faults().fail("vxedGetVar:CMDACTIVE");
    forget();
    EXPECT_FALSE(commandStopped());
    EXPECT_TRUE(lines().empty());
}

TEST_F(CmdUtilTest, WithoutADockedCommandLineTheCancelGoesOutAllTheSame) {
    bench().editor().beginCommand(L"LINE");
    bench().faults().fail("vxedGetZorqDockCmdLine");
    forget();
    EXPECT_TRUE(commandStopped());
    EXPECT_EQ(lines().size(), 1U);
    endCommands();
}

// Sending

TEST_F(CmdUtilTest, CommandForTheUserGoesToTheCommandLineWithItsFocus) {
    blur();
    forget();
    EXPECT_TRUE(sendHostCommand(L"_sunstatus"));
    const auto told = lines();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0], (Line{"_sunstatus", false, true, true}));
    EXPECT_EQ(CWnd::GetFocus(), vxedGetZorqDockCmdLine());
}

TEST_F(CmdUtilTest, SendingWithoutTheHostsDocumentsIsQuiet) {
    bench().faults().fail("vxDocManagerPtr", std::nullopt, 1);
    forget();
    EXPECT_TRUE(sendHostCommand(L"_sunstatus"));
    EXPECT_TRUE(lines().empty());
}

TEST_F(CmdUtilTest, WholeCommandHasRunWhenTheCallReturns) {
    set(L"DEFAULTLIGHTING", 0);
    forget();
    runHostCommand(L"_defaultlighting\n1\n", 0);
    EXPECT_EQ(bench().editor().read(L"DEFAULTLIGHTING"), Value(1));
    const std::string call = lastCall("do_cmd");
    EXPECT_NE(call.find("_defaultlighting"), std::string::npos);
    EXPECT_NE(call.find(",0,0,1]"), std::string::npos) << call;
}

TEST_F(CmdUtilTest, CommandsFlagIsHandedOn) {
    for (const int flag : {0, 1}) {
        forget();
        runHostCommand(L"_defaultlighting\n1\n", flag);
        EXPECT_EQ(calls({"do_cmd"}),
                  (Lines{"do_cmd(\"_defaultlighting\n1\n\", " + std::to_string(flag) + ", 0, 1)"}));
    }
}

TEST_F(CmdUtilTest, MacroWithoutTheHostsDocumentsIsQuiet) {
    bench().faults().fail("vxDocManagerPtr", std::nullopt, 1);
    forget();
    sendMenuMacro(L"_regen\n");
    EXPECT_TRUE(calls({"vxedSendMenuStringToExecute"}).empty());
}

// Which document is addressed

/// "Drawing1" is the current document, "Front" the active one.
class AddressedDocumentTest : public CmdUtilTest {
protected:
    void SetUp() override {
        CmdUtilTest::SetUp();
        workbench::DocumentList& documents = bench().editor().documents();
        m_current = documents.current();
        m_active = &documents.create(L"Front");
        m_scope = std::make_unique<workbench::CurrentDocument>(documents, *m_current);
        forget();
    }
    void TearDown() override {
        m_scope.reset();
        endCommands();
        CmdUtilTest::TearDown();
    }
    bool currentWasSentTo() { return m_current->processor().hasQueued(); }
    bool activeWasSentTo() { return m_active->processor().hasQueued(); }

private:
    workbench::Document* m_current = nullptr;  // not owned
    workbench::Document* m_active = nullptr;   // not owned
    std::unique_ptr<workbench::CurrentDocument> m_scope;
};

TEST_F(AddressedDocumentTest, OfAMacroIsTheActiveOne) {
    sendMenuMacro(L"_regen\n");
    EXPECT_TRUE(activeWasSentTo());
    EXPECT_FALSE(currentWasSentTo());
    const std::string call = lastCall("vxedSendMenuStringToExecute");
    EXPECT_NE(call.find(",1]"), std::string::npos) << call;
}

TEST_F(AddressedDocumentTest, OfACommandForTheUserIsTheCurrentOne) {
    sendHostCommand(L"_sunstatus");
    EXPECT_TRUE(currentWasSentTo());
    EXPECT_FALSE(activeWasSentTo());
}

TEST_F(AddressedDocumentTest, OfTheCancelIsTheCurrentOne) {
    bench().editor().beginCommand(L"LINE");
    EXPECT_TRUE(commandStopped());
    EXPECT_TRUE(currentWasSentTo());
    EXPECT_FALSE(activeWasSentTo());
}

// Where the user works

struct SpaceCase {
    int tileMode;
    int viewport;
    bool paperSpace;
};
class ActiveSpaceTest : public CmdUtilTest, public testing::WithParamInterface<SpaceCase> {
protected:
    void SetUp() override {
        CmdUtilTest::SetUp();
        bench().editor().documents().open(std::string(PROJECT_SOURCE_ROOT) +
                                          "/examples/house.json");
    }
};

TEST_P(ActiveSpaceTest, IsPaperSpaceInTheSheetsOwnViewportAlone) {
    set(L"TILEMODE", GetParam().tileMode);
    set(L"CVPORT", GetParam().viewport);
    EXPECT_EQ(isPaperSpaceActive(), GetParam().paperSpace);
}

INSTANTIATE_TEST_SUITE_P(Spaces, ActiveSpaceTest,
                         testing::Values(SpaceCase{1, 2, false}, SpaceCase{0, 1, true},
                                         SpaceCase{0, 2, false}));

TEST_F(CmdUtilTest, ViewportIsAskedForInALayoutAlone) {
    forget();
    EXPECT_FALSE(isPaperSpaceActive());
    EXPECT_EQ(calls({"vxedGetVar"}), Lines{"vxedGetVar(\"TILEMODE\")"});
    set(L"TILEMODE", 0);
    forget();
    EXPECT_TRUE(isPaperSpaceActive());
    EXPECT_EQ(calls({"vxedGetVar"}), (Lines{"vxedGetVar(\"TILEMODE\")", "vxedGetVar(\"CVPORT\")"}));
}

TEST_F(CmdUtilTest, UnreadableTileModeLeavesTheViewportToDecide) {
    set(L"TILEMODE", 0);
    bench().faults().fail("vxedGetVar:TILEMODE");
    EXPECT_TRUE(isPaperSpaceActive());
    bench().faults().fail("vxedGetVar:CVPORT");
    EXPECT_FALSE(isPaperSpaceActive());
}

TEST_F(CmdUtilTest, BlockEditorIsOpenAtOneAlone) {
    EXPECT_FALSE(isBlockEditorActive());
    set(L"BLOCKEDITOR", 1);
    EXPECT_TRUE(isBlockEditorActive());
}

// The main window

/// Keeps the activations of a window, and answers them.
class ActivationWidget final : public workbench::Widget {
public:
    struct Activation {
        WPARAM wParam;
        LPARAM lParam;
        friend bool operator==(const Activation&, const Activation&) = default;
    };
    static constexpr LRESULT kAnswer = 41;

    explicit ActivationWidget(std::vector<Activation>& got) : m_got(got) {}

    bool handle(workbench::Window& /*window*/, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override {
        if (message != WM_ACTIVATE)
            return false;
        m_got.push_back({wParam, lParam});
        answer = kAnswer;
        return true;
    }

private:
    std::vector<Activation>& m_got;
};

TEST_F(CmdUtilTest, MainWindowIsToldOnceThatItIsActiveAndItsAnswerIsReturned) {
    std::vector<ActivationWidget::Activation> got;
    workbench::Window* frame = bench().windows().find(bench().toolkit().frame().frame().m_hWnd);
    std::unique_ptr<workbench::Widget> widget = std::make_unique<ActivationWidget>(got);
    frame->widget.swap(widget);
    EXPECT_EQ(activateMainWindow(), ActivationWidget::kAnswer);
    EXPECT_EQ(got, (std::vector<ActivationWidget::Activation>{{1, 0}}));
    frame->widget.swap(widget);
}

TEST_F(CmdUtilTest, ActivationIsZeroWithoutAMainWindow) {
    bench().faults().fail("AfxGetMainWnd");
    EXPECT_EQ(activateMainWindow(), 0);
}

}  // namespace
