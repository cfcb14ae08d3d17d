#include "module/control_manager.h"

#include "layer/filter_combo.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/call_lines.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/window/frame.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class ControlManagerTest : public PaletteTest {
protected:
    void SetUp() override {
        load();
        m_parent.Create(WS_CHILD | WS_VISIBLE, {0, 0, 200, 60}, AfxGetMainWnd(), 1, 0);
    }
    void TearDown() override {
        m_controls.releaseControls();
        m_parent.DestroyWindow();
        PaletteTest::TearDown();
    }
    /// How often the layer filters were read since the journal was taken.
    int refreshes() {
        return static_cast<int>(
            support::callLines(bench().journal().take(), {"vxedSetUseCurrentFilterFlag"}).size());
    }
    /// Writes into the control's field and leaves the entry unfinished.
    void typeEntry(HWND control, const wchar_t* text) {
        // Parts are found in windows with names.
        bench().windows().setName(control, "control");
        ASSERT_TRUE(workbench::gestures::focusField(
            bench().toolkit(), workbench::findPart(bench().windows(), control, "edit")));
        workbench::gestures::replaceText(bench().toolkit(), text);
    }
    /// Opens a document behind whose command actions wait.
    void beginCommand() { bench().editor().beginCommand(L"LINE"); }

    CQrUiToolPanel m_parent;
    CVxDaControlMgr m_controls;
};

TEST_F(ControlManagerTest, NameIsTakenWithoutRegardToCase) {
    const HWND control = m_controls.createControl(L"layerlocktransparencyslidercontrol", &m_parent);
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(CWnd::FromHandle(control)->GetDlgCtrlID(), 601);
    EXPECT_EQ(CWnd::FromHandle(control)->GetParent(), &m_parent);
}

TEST_F(ControlManagerTest, ControlFillsTheParentsClientArea) {
    const HWND control = m_controls.createControl(L"LayerLockTransparencySliderControl", &m_parent);
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(CWnd::FromHandle(control)->GetWindowRect().Width(), 200);
}

TEST_F(ControlManagerTest, EmptyNameGivesNullWithoutTouchingTheParent) {
    // No window stands at this address: whoever looks at it breaks.
    auto* const untouchable = reinterpret_cast<CWnd*>(alignof(CWnd));
    EXPECT_EQ(m_controls.createControl(L"", untouchable), nullptr);
}

TEST_F(ControlManagerTest, ControlWithoutAParentIsNotMade) {
    EXPECT_EQ(m_controls.createControl(L"LayerLockTransparencySliderControl", nullptr), nullptr);
}

TEST_F(ControlManagerTest, HostsControlIsFoundWithoutRegardToCase) {
    const HWND control = m_controls.createControl(L"LINETYPECONTROL", &m_parent);
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(takeLines({"getVxToolbarControl"}),
              Lines{"getVxToolbarControl(object, 0, 0, 220, 360, 2222)"});
}

TEST_F(ControlManagerTest, UnknownNameGivesNull) {
    EXPECT_EQ(m_controls.createControl(L"NoSuchControl", &m_parent), nullptr);
}

TEST_F(ControlManagerTest, ControlWithoutItsSliderIsNotKept) {
    workbench::Workbench::current().faults().fail("CQrUiProgSliderCtrl::Create");
    EXPECT_EQ(m_controls.createControl(L"LayerLockTransparencySliderControl", &m_parent), nullptr);
    workbench::Workbench::current().faults().unfail("CQrUiProgSliderCtrl::Create");
}

TEST_F(ControlManagerTest, ReleaseEndsWindowsAndTwiceIsHarmless) {
    const HWND control = m_controls.createControl(L"LayerLockTransparencySliderControl", &m_parent);
    m_controls.releaseControls();
    EXPECT_FALSE(IsWindow(control));
    m_controls.releaseControls();
    EXPECT_FALSE(IsWindow(control));
}

TEST_F(ControlManagerTest, ReleaseCopesWithControlsWhoseWindowsDied) {
    const HWND control = m_controls.createControl(L"LayerLockTransparencySliderControl", &m_parent);
    CWnd::FromHandle(control)->DestroyWindow();
    m_controls.releaseControls();
    EXPECT_FALSE(IsWindow(control));
}

TEST_F(ControlManagerTest, ReleaseEndsTheControlsInTheOrderOfTheirCreation) {
    m_controls.createControl(L"LayerLockTransparencySliderControl", &m_parent);
    m_controls.createControl(L"3DNavZoomSliderControl", &m_parent);
    int number = 0;
    for (const HWND child : bench().windows().find(m_parent.m_hWnd)->children)
        bench().windows().setName(child, "control " + std::to_string(++number));
    forget();
    m_controls.releaseControls();
    Lines ended = takeLines({"CWnd::DestroyWindow"});
    std::erase(ended, "CWnd::DestroyWindow(\"\")");
    EXPECT_EQ(ended,
              (Lines{"CWnd::DestroyWindow(\"control 1\")", "CWnd::DestroyWindow(\"control 2\")"}));
}

TEST_F(ControlManagerTest, ReleaseTakesAnEntryOverThatTheUserHadNotFinished) {
    typeEntry(m_controls.createControl(L"LayerLockTransparencySliderControl", &m_parent), L"70");
    ASSERT_EQ(bench().editor().read(L"LAYLOCKFADECTL"), workbench::Value(50));
    m_controls.releaseControls();
    EXPECT_EQ(bench().editor().read(L"LAYLOCKFADECTL"), workbench::Value(70));
}

TEST_F(ControlManagerTest, EndOfTheManagerReleasesItsControls) {
    auto controls = std::make_unique<CVxDaControlMgr>();
    const HWND control = controls->createControl(L"LayerLockTransparencySliderControl", &m_parent);
    typeEntry(control, L"70");
    controls.reset();
    EXPECT_FALSE(IsWindow(control));
    EXPECT_EQ(bench().editor().read(L"LAYLOCKFADECTL"), workbench::Value(70));
}

// Hidden items

TEST_F(ControlManagerTest, EmptyListOfHiddenItemsChangesNothing) {
    EXPECT_EQ(m_controls.setItemsHidden({}, true), 0);
    EXPECT_EQ(m_controls.setItemsHidden({}, false), 0);
}

TEST_F(ControlManagerTest, HiddenItemsAreExactAndListedOnce) {
    EXPECT_NE(m_controls.setItemsHidden({L"A", L"B"}, true), 0);
    EXPECT_TRUE(m_controls.isItemHidden(L"A"));
    EXPECT_FALSE(m_controls.isItemHidden(L"a"));
    EXPECT_EQ(m_controls.setItemsHidden({L"A"}, true), 0);
    EXPECT_NE(m_controls.setItemsHidden({L"A", L"C"}, true), 0);
    EXPECT_EQ(m_controls.setItemsHidden({L"X"}, false), 0);
    EXPECT_NE(m_controls.setItemsHidden({L"A", L"X"}, false), 0);
    EXPECT_FALSE(m_controls.isItemHidden(L"A"));
    EXPECT_TRUE(m_controls.isItemHidden(L"C"));
}

TEST_F(ControlManagerTest, FirstListIsTakenWholeWithItsDoublesAndRemovalTakesTheFirst) {
    m_controls.setItemsHidden({L"A", L"A"}, true);
    m_controls.setItemsHidden({L"A"}, false);
    EXPECT_TRUE(m_controls.isItemHidden(L"A"));
    m_controls.setItemsHidden({L"A"}, false);
    EXPECT_FALSE(m_controls.isItemHidden(L"A"));
}

// What refreshes the layer filter lists

struct NameCase {
    const wchar_t* name;
    bool refreshes;
};

class CommandNameTest : public ControlManagerTest, public testing::WithParamInterface<NameCase> {};

TEST_P(CommandNameTest, RefreshesTheLayerFilterLists) {
    const CVxDaFilterComboCtrl list;
    bench().journal().take();
    m_controls.onCommandEnded(GetParam().name);
    EXPECT_EQ(refreshes(), GetParam().refreshes ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Names, CommandNameTest,
                         testing::Values(NameCase{L"LAYER", true}, NameCase{L"-LAYER", true},
                                         NameCase{L"U", true}, NameCase{L"UNDO", true},
                                         NameCase{L"REDO", true}, NameCase{L"layer", true},
                                         NameCase{L"-Layer", true}, NameCase{L"LAYERS", false},
                                         NameCase{L"LINE", false}, NameCase{L"", false}));

class VariableNameTest : public ControlManagerTest, public testing::WithParamInterface<NameCase> {};

TEST_P(VariableNameTest, RefreshesTheLayerFilterLists) {
    const CVxDaFilterComboCtrl list;
    bench().journal().take();
    m_controls.onSysVarChanged(GetParam().name, 1);
    EXPECT_EQ(refreshes(), GetParam().refreshes ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Names, VariableNameTest,
                         testing::Values(NameCase{L"TILEMODE", true}, NameCase{L"Tilemode", false},
                                         NameCase{L"tilemode", false}, NameCase{L"CVPORT", false}));

// Quiet moments

class RecordingCallback final : public VxDaCmdUtil::InputContextReactor::Callback {
public:
    explicit RecordingCallback(int& runs, int& ends) : m_runs(runs), m_ends(ends) {}
    ~RecordingCallback() override { ++m_ends; }
    void run() override { ++m_runs; }

private:
    int& m_runs;
    int& m_ends;
};

TEST_F(ControlManagerTest, ActionAtRestRunsBeforeTheCallReturnsAndIsDeleted) {
    int runs = 0;
    int ends = 0;
    m_controls.runWhenQuiescent(std::make_unique<RecordingCallback>(runs, ends));
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(ends, 1);
}

TEST_F(ControlManagerTest, ActionBehindACommandThatNeverEndsIsDeletedUnrunWithItsDocument) {
    int runs = 0;
    int ends = 0;
    workbench::Editor& editor = workbench::Workbench::current().editor();
    editor.beginCommand(L"LINE");
    m_controls.runWhenQuiescent(std::make_unique<RecordingCallback>(runs, ends));
    EXPECT_EQ(runs, 0);
    forget();
    m_controls.removeDocumentReactor(editor.documents().current());
    EXPECT_EQ(takeLines({"VxEdInputManager::removeReactor"}),
              Lines{"VxEdInputManager::removeReactor(object)"});
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(ends, 1);
    editor.pump();
    EXPECT_EQ(runs, 0);
}

TEST_F(ControlManagerTest, DocumentThatNeverQueuedAnActionHasNoReactorToTakeOff) {
    forget();
    m_controls.removeDocumentReactor(bench().editor().documents().current());
    EXPECT_EQ(takeLines(), Lines{});
}

TEST_F(ControlManagerTest, EndOfOneDocumentLeavesTheActionsOfTheOther) {
    int runs = 0;
    int ends = 0;
    workbench::Editor& editor = bench().editor();
    workbench::Document* first = editor.documents().current();
    beginCommand();
    m_controls.runWhenQuiescent(std::make_unique<RecordingCallback>(runs, ends));
    editor.documents().create(L"B");
    beginCommand();
    m_controls.runWhenQuiescent(std::make_unique<RecordingCallback>(runs, ends));
    m_controls.removeDocumentReactor(first);
    EXPECT_EQ(ends, 1);
    editor.pump();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(ends, 2);
}

TEST_F(ControlManagerTest, ActionBehindACommandWithoutACurrentDocumentIsDeletedUnrun) {
    int runs = 0;
    int ends = 0;
    workbench::Editor& editor = bench().editor();
    editor.beginCommand(L"LINE");
    bench().faults().fail("VxApDocManager::curDocument");
    forget();
    m_controls.runWhenQuiescent(std::make_unique<RecordingCallback>(runs, ends));
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(callCount("VxEdInputManager::addReactor"), 0);
    bench().faults().unfail("VxApDocManager::curDocument");
    editor.finishCommand(workbench::CommandState::Ended);
    EXPECT_EQ(runs, 0);
}

TEST_F(ControlManagerTest, EachDocumentGetsOneReactorForAllItsActions) {
    int runs = 0;
    int ends = 0;
    workbench::Editor& editor = bench().editor();
    const auto queueBehindALine = [&](int count) {
        forget();
        editor.beginCommand(L"LINE");
        for (int i = 0; i < count; ++i)
            m_controls.runWhenQuiescent(std::make_unique<RecordingCallback>(runs, ends));
        return callCount("VxEdInputManager::addReactor");
    };
    EXPECT_EQ(queueBehindALine(2), 1);
    editor.pump();
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(queueBehindALine(1), 0) << "the reactor stays for the document's life";
    editor.pump();
    EXPECT_EQ(runs, 3);
    editor.documents().create(L"B");
    EXPECT_EQ(queueBehindALine(2), 1);
    editor.pump();
    EXPECT_EQ(runs, 5);
    EXPECT_EQ(ends, 5);
}

TEST_F(ControlManagerTest, EndOfTheManagerTakesItsReactorsAwayAndDeletesWhatWaitsUnrun) {
    int runs = 0;
    int ends = 0;
    workbench::Editor& editor = bench().editor();
    auto controls = std::make_unique<CVxDaControlMgr>();
    editor.beginCommand(L"LINE");
    controls->runWhenQuiescent(std::make_unique<RecordingCallback>(runs, ends));
    forget();
    controls.reset();
    EXPECT_EQ(takeLines({"VxEdInputManager::removeReactor"}),
              Lines{"VxEdInputManager::removeReactor(object)"});
    EXPECT_EQ(ends, 1);
    editor.pump();
    EXPECT_EQ(runs, 0);
}

TEST_F(ControlManagerTest, EndOfTheManagerEndsWhatWaitsBeforeTheControls) {
    int runs = 0;
    int ends = 0;
    auto controls = std::make_unique<CVxDaControlMgr>();
    const HWND control = controls->createControl(L"LayerLockTransparencySliderControl", &m_parent);
    bench().windows().setName(control, "control");
    beginCommand();
    controls->runWhenQuiescent(std::make_unique<RecordingCallback>(runs, ends));
    std::vector<int> endsAtDestruction;
    const auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        if (record.kind == "call" &&
            support::callLine(record) == "CWnd::DestroyWindow(\"control\")")
            endsAtDestruction.push_back(ends);
    });
    controls.reset();
    EXPECT_EQ(endsAtDestruction, std::vector<int>{1});
    bench().editor().pump();
}

}  // namespace
