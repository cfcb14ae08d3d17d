#include "module/control_manager.h"

#include "layer/filter_refresh.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/editor/editor.h"

#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/window/frame.h>

#include <memory>
#include <string>

namespace {

/// Counts the refreshes of layer filter lists.
class CountingView final : public LayerFilterView {
public:
    CountingView() { addLayerFilterView(this); }
    ~CountingView() override { removeLayerFilterView(this); }
    void refreshFilters() override { ++refreshes; }
    int refreshes = 0;
};

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
    EXPECT_EQ(m_controls.createControl(L"", nullptr), nullptr);
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
    const CountingView view;
    m_controls.onCommandEnded(GetParam().name);
    EXPECT_EQ(view.refreshes, GetParam().refreshes ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Names, CommandNameTest,
                         testing::Values(NameCase{L"LAYER", true}, NameCase{L"-LAYER", true},
                                         NameCase{L"U", true}, NameCase{L"UNDO", true},
                                         NameCase{L"REDO", true}, NameCase{L"layer", true},
                                         NameCase{L"-Layer", true}, NameCase{L"LAYERS", false},
                                         NameCase{L"LINE", false}, NameCase{L"", false}));

class VariableNameTest : public ControlManagerTest, public testing::WithParamInterface<NameCase> {};

TEST_P(VariableNameTest, RefreshesTheLayerFilterLists) {
    const CountingView view;
    m_controls.onSysVarChanged(GetParam().name, 1);
    EXPECT_EQ(view.refreshes, GetParam().refreshes ? 1 : 0);
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
    m_controls.removeDocumentReactor(editor.documents().current());
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(ends, 1);
    editor.pump();
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
    EXPECT_EQ(callCount("VxEdInputManager::removeReactor"), 1);
    EXPECT_EQ(ends, 1);
    editor.pump();
    EXPECT_EQ(runs, 0);
}

}  // namespace
