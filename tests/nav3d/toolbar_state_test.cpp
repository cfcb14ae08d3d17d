#include "tests/nav3d/nav_fixture.h"
#include "tests/support/call_lines.h"
#include "workbench/toolkit/lookup.h"

#include <hostapi/vxdashboard.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

constexpr const wchar_t* kPlay = L"ID_Animation_Play";
constexpr const wchar_t* kRecord = L"ID_Animation_Record";
constexpr const wchar_t* kPause = L"ID_Animation_Pause";
constexpr const wchar_t* kSave = L"ID_Animation_Save";

class ToolbarStateTest : public NavControlTest {
protected:
    void SetUp() override {
        useExampleMenu();
        showControl("3DNavZoomSliderControl");
        idle();
        takeJournal();
    }
    bool disabled(const wchar_t* id, std::size_t n = 1) {
        return workbench::viewOf(bench().toolkit(), *item(id, n)).disabled;
    }
    bool checked(const wchar_t* id, std::size_t n = 1) {
        return workbench::viewOf(bench().toolkit(), *item(id, n)).checked;
    }
    std::wstring name(const wchar_t* id) {
        return workbench::viewOf(bench().toolkit(), *item(id)).name;
    }
    void expectEnabled(bool play, bool record, bool pause, bool save) {
        EXPECT_EQ(disabled(kPlay), !play);
        EXPECT_EQ(disabled(kRecord), !record);
        EXPECT_EQ(disabled(kPause), !pause);
        EXPECT_EQ(disabled(kSave), !save);
    }
    workbench::NavigationTool& tool() { return bench().navigation(); }
    /// What changed of the items since the last look, such as "ID_Camera disabled".
    Lines itemChanges() {
        Lines changes;
        for (const workbench::JournalRecord& record : takeJournal("item")) {
            changes.push_back(record.field("id").asString() + " " +
                              record.field("field").asString());
        }
        return changes;
    }
    /// How the module was asked for its state since the last look.
    Lines questions() {
        return takeCallLines({"vxrxServiceIsRegistered", "GetModuleHandle", "GetProcAddress"});
    }
};

const std::string kService = "vxrxServiceIsRegistered(\"ZorqVmTools\")";
const std::string kModule = "GetModuleHandle(\"VxVmTools.qlx\")";
const std::string kState = "GetProcAddress(\"VxVmTools.qlx\", \"navIsActive\")";

// Animation

TEST_F(ToolbarStateTest, WithoutAToolNothingCanBePressed) {
    expectEnabled(false, false, false, false);
}

TEST_F(ToolbarStateTest, WithoutAToolTheModuleIsNotAsked) {
    takeJournal();
    idle();
    EXPECT_EQ(questions(), Lines{});
}

TEST_F(ToolbarStateTest, ModuleIsAskedOnceByAnIdleAndByAPausedTool) {
    startTool();
    takeJournal();
    idle();
    EXPECT_EQ(questions(), (Lines{kService, kModule, kState}));
    tool().recordAnimation();
    tool().pauseRecording();
    takeJournal();
    idle();
    EXPECT_EQ(questions(), (Lines{kService, kModule, kState}));
}

TEST_F(ToolbarStateTest, ModuleIsAskedTwiceByARecordingTool) {
    startTool();
    tool().recordAnimation();
    takeJournal();
    idle();
    EXPECT_EQ(questions(), (Lines{kService, kModule, kState, kService, kModule, kState}));
}

TEST_F(ToolbarStateTest, RecordingThatEndsBetweenTheTwoQuestionsChangesNothing) {
    startTool();
    idle();
    tool().recordAnimation();
    int asked = 0;
    const auto listening =
        bench().journal().addListener([&](const workbench::JournalRecord& record) {
            if (support::callLines({record}, {"GetProcAddress"}) == Lines{kState} && ++asked == 2)
                tool().pauseRecording();
        });
    itemChanges();
    send(WM_IDLEUPDATECMDUI);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(itemChanges(), Lines{});
}

TEST_F(ToolbarStateTest, UnregisteredServiceCountsAsAnIdleTool) {
    startTool();
    tool().recordAnimation();
    fail("vxrxServiceIsRegistered");
    takeJournal();
    idle();
    EXPECT_EQ(questions(), Lines{kService});
    expectEnabled(false, true, false, false);
}

TEST_F(ToolbarStateTest, ButtonsChangeInTheirOrderWithRecordsNameAtItsTurn) {
    startTool();
    idle();
    tool().recordAnimation();
    tool().pauseRecording();
    itemChanges();
    idle();
    EXPECT_EQ(itemChanges(), (Lines{"ID_Animation_Play disabled", "ID_Animation_Record name",
                                    "ID_Animation_Save disabled"}));
    tool().recordAnimation();
    itemChanges();
    idle();
    EXPECT_EQ(itemChanges(), (Lines{"ID_Animation_Record disabled", "ID_Animation_Record name",
                                    "ID_Animation_Pause disabled"}));
}

TEST_F(ToolbarStateTest, IdleToolLetsTheUserRecord) {
    startTool();
    idle();
    expectEnabled(false, true, false, false);
    EXPECT_EQ(name(kRecord), stringOf(1249));
}

TEST_F(ToolbarStateTest, RecordingToolCanBePaused) {
    startTool();
    tool().recordAnimation();
    idle();
    expectEnabled(true, false, true, true);
    EXPECT_EQ(name(kRecord), stringOf(1249));
}

TEST_F(ToolbarStateTest, PausedToolGoesOnPlaysOrIsSaved) {
    startTool();
    tool().recordAnimation();
    tool().pauseRecording();
    idle();
    expectEnabled(true, true, false, true);
    EXPECT_EQ(name(kRecord), stringOf(1248));
}

TEST_F(ToolbarStateTest, LeavingTheToolDisablesAllFourAndLeavesRecordsName) {
    startTool();
    tool().recordAnimation();
    tool().pauseRecording();
    idle();
    stopTool();
    idle();
    expectEnabled(false, false, false, false);
    EXPECT_EQ(name(kRecord), stringOf(1248));
}

class MissingModuleTest : public ToolbarStateTest, public testing::WithParamInterface<bool> {};

TEST_P(MissingModuleTest, CountsAsAnIdleTool) {
    startTool();
    tool().recordAnimation();
    if (GetParam())
        bench().faults().hide("VxVmTools.qlx");
    else
        bench().faults().hide("VxVmTools.qlx", "navIsActive");
    idle();
    expectEnabled(false, true, false, false);
}

INSTANTIATE_TEST_SUITE_P(WholeOrSymbol, MissingModuleTest, testing::Bool());

// Camera

TEST_F(ToolbarStateTest, PaperSpaceDisablesAndUnchecksTheCamera) {
    openDrawing("examples/house.json");
    item(L"ID_Camera")->SetState(kItemChecked);
    set(L"TILEMODE", 0);
    set(L"CVPORT", 1);
    idle();
    EXPECT_TRUE(disabled(L"ID_Camera"));
    EXPECT_FALSE(checked(L"ID_Camera"));
    set(L"CVPORT", 2);
    idle();
    EXPECT_FALSE(disabled(L"ID_Camera"));
    EXPECT_FALSE(checked(L"ID_Camera")) << "only the host sets it";
}

TEST_F(ToolbarStateTest, CamerasMarkIsTakenOffOnASheetAlone) {
    item(L"ID_Camera")->SetState(kItemChecked);
    idle();
    EXPECT_TRUE(checked(L"ID_Camera"));
    EXPECT_FALSE(disabled(L"ID_Camera"));
}

TEST_F(ToolbarStateTest, CameraLosesItsMarkBeforeItIsDisabled) {
    openDrawing("examples/house.json");
    item(L"ID_Camera")->SetState(kItemChecked);
    set(L"TILEMODE", 0);
    set(L"CVPORT", 1);
    itemChanges();
    idle();
    const Lines changes = itemChanges();
    ASSERT_GE(changes.size(), 2U);
    EXPECT_EQ(changes[0], "ID_Camera checked");
    EXPECT_EQ(changes[1], "ID_Camera disabled");
}

TEST_F(ToolbarStateTest, CameraDisplayFollowsTheDrawing) {
    set(L"CAMERADISPLAY", 1);
    idle();
    EXPECT_TRUE(checked(L"ID_CAMERAS_OnOf"));
    set(L"CAMERADISPLAY", 0);
    idle();
    EXPECT_FALSE(checked(L"ID_CAMERAS_OnOf"));
}

// Projection

TEST_F(ToolbarStateTest, ProjectionTogglesAreOpposites) {
    set(L"PERSPECTIVE", 1);
    idle();
    EXPECT_TRUE(checked(L"ID_Perspective_Projection"));
    EXPECT_FALSE(checked(L"ID_Parallel_Projection"));
    set(L"PERSPECTIVE", 0);
    idle();
    EXPECT_FALSE(checked(L"ID_Perspective_Projection"));
    EXPECT_TRUE(checked(L"ID_Parallel_Projection"));
}

TEST_F(ToolbarStateTest, ProjectionLeavesTheDisabledMarkAlone) {
    item(L"ID_Perspective_Projection")->SetState(kItemDisabled);
    set(L"PERSPECTIVE", 1);
    idle();
    EXPECT_TRUE(checked(L"ID_Perspective_Projection"));
    EXPECT_TRUE(disabled(L"ID_Perspective_Projection"));
}

// When it runs

TEST_F(ToolbarStateTest, IdleTickThatChangesNothingTouchesNoItem) {
    idle();
    takeJournal();
    idle();
    EXPECT_TRUE(takeJournal("item").empty());
}

TEST_F(ToolbarStateTest, EndOfACommandRunsItToo) {
    set(L"PERSPECTIVE", 1);
    begin(L"LINE");
    finish();
    EXPECT_TRUE(checked(L"ID_Perspective_Projection"));
}

TEST_F(ToolbarStateTest, HiddenDashboardIsLeftAlone) {
    paletteSet()->ShowWindow(SW_HIDE);
    set(L"PERSPECTIVE", 1);
    idle();
    EXPECT_FALSE(checked(L"ID_Perspective_Projection"));
    begin(L"LINE");
    finish();
    EXPECT_FALSE(checked(L"ID_Perspective_Projection"));
}

TEST_F(ToolbarStateTest, WithoutADatabaseTheEndOfACommandStillSetsTheProjection) {
    set(L"PERSPECTIVE", 1);
    bench().faults().fail("vxdbHostApplicationServices");
    begin(L"LINE");
    finish();
    EXPECT_TRUE(checked(L"ID_Perspective_Projection"));
}

// Items of one key

constexpr const char* kTwiceMenu = R"({
  "menuGroups": [{"name": "MAIN"}],
  "panels": [{"menuGroup": "MAIN", "id": "P", "title": "P", "toolPanels": ["One", "Two"]}],
  "workspaces": [{"name": "W", "panels": [{"panel": "P", "menuGroup": "MAIN"}]}],
  "currentWorkspace": "W",
  "toolPanels": [
    {"menuGroup": "MAIN", "id": "One", "items": [
      {"type": "control", "control": "3DNavZoomSliderControl"},
      {"type": "button", "id": "ID_Perspective_Projection"}]},
    {"menuGroup": "MAIN", "id": "Two", "items": [
      {"type": "button", "id": "ID_Perspective_Projection"}]}]
})";

class TwiceTest : public ToolbarStateTest {
protected:
    void SetUp() override {
        useMenu(kTwiceMenu);
        ToolbarStateTest::SetUp();
    }
};

TEST_F(TwiceTest, AllItemsOfAKeyChangeAndMissingKeysAreSkipped) {
    set(L"PERSPECTIVE", 1);
    idle();
    EXPECT_TRUE(checked(L"ID_Perspective_Projection", 1));
    EXPECT_TRUE(checked(L"ID_Perspective_Projection", 2));
}

}  // namespace
