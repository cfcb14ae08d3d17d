#include "module/control_manager.h"
#include "module/module.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/bench.h"
#include "tests/support/call_lines.h"
#include "workbench/base/text.h"
#include "workbench/loader/module_loader.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdb18.h>
#include <hostapi/zorq.h>
#include <hostapi/zorq/menu_data.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr int kFirstProjectionMode = 4315;  // parallel; perspective is the next one

using Calls = std::vector<std::string>;

class ToolClicksTest : public support::Bench {
protected:
    void SetUp() override {
        showDashboard();
        takeSent();
        takeJournal();
    }
    void startOrbit() {
        type(L"3DORBIT\n");
        CTool* tool = nullptr;
        ASSERT_TRUE(OrbitInProgress(tool));
        ASSERT_NE(tool, nullptr);
        takeSent();
        takeJournal();
    }
    void loadNavigation() { ASSERT_TRUE(vxrxLoadModule(L"VxVmTools.qlx", false, true)); }
    /// Fields of the navigation records since the last look.
    std::vector<workbench::JournalRecord> navigation() { return takeJournal("navigation"); }
    /// The road to a function of the navigation module since the last look.
    Calls road() {
        return takeCallLines({"vxrxServiceIsRegistered", "VxRxDynamicLinker::loadModule",
                              "GetModuleHandle", "GetProcAddress", "AfxMessageBox"});
    }
    /// Whether the module's function was looked up.
    bool askedFor(const std::string& symbol) {
        const Calls made = road();
        return std::find(made.begin(), made.end(), symbolCall(symbol)) != made.end();
    }
    static std::string symbolCall(const std::string& symbol) {
        return "GetProcAddress(\"VxVmTools.qlx\", \"" + symbol + "\")";
    }
};

const std::string kService = "vxrxServiceIsRegistered(\"ZorqVmTools\")";
const std::string kHandle = "GetModuleHandle(\"VxVmTools.qlx\")";
const std::string kLoad = "VxRxDynamicLinker::loadModule(\"VxVmTools.qlx\", 1, 0)";

struct ModeCase {
    const wchar_t* id;
    int mode;
};

class NavigationModeTest : public ToolClicksTest, public testing::WithParamInterface<ModeCase> {};

TEST_P(NavigationModeTest, RunsTheMacroWithoutANavigationTool) {
    click(item(GetParam().id));
    const auto texts = takeSent();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].way, "menu");
    type(L"\x1b");
}

TEST_P(NavigationModeTest, SwitchesTheRunningToolToItsMode) {
    loadNavigation();
    startOrbit();
    takeJournal("call");
    click(item(GetParam().id));
    EXPECT_EQ(road(), (Calls{kHandle, symbolCall("navSwitchNavMode")}));
    EXPECT_TRUE(takeSent().empty());
    if (GetParam().mode < kFirstProjectionMode) {
        EXPECT_EQ(bench().navigation().mode(), GetParam().mode);
    } else {
        EXPECT_EQ(var(L"PERSPECTIVE"), workbench::Value(GetParam().mode - kFirstProjectionMode));
    }
    type(L"\x1b");
}

TEST_P(NavigationModeTest, DoesNothingWhileTheModuleIsAway) {
    bench().faults().hide("VxVmTools.qlx");
    startOrbit();
    click(item(GetParam().id));
    EXPECT_TRUE(takeSent().empty());
    EXPECT_TRUE(navigation().empty());
    type(L"\x1b");
}

TEST_P(NavigationModeTest, DoesNothingWhileTheSymbolIsMissing) {
    loadNavigation();
    bench().faults().hide("VxVmTools.qlx", "navSwitchNavMode");
    startOrbit();
    click(item(GetParam().id));
    EXPECT_TRUE(takeSent().empty());
    EXPECT_TRUE(navigation().empty());
    type(L"\x1b");
}

INSTANTIATE_TEST_SUITE_P(Table, NavigationModeTest,
                         testing::Values(ModeCase{L"MM_1572", 2}, ModeCase{L"MM_1573", 3},
                                         ModeCase{L"ID_Constrained_Orbit", 4},
                                         ModeCase{L"ID_Free_Orbit", 22},
                                         ModeCase{L"ID_3dcorbit", 5}, ModeCase{L"ID_3DWalk", 17},
                                         ModeCase{L"ID_3DFLY", 18}, ModeCase{L"ID_3ddistanc", 10},
                                         ModeCase{L"ID_3dswivel", 9},
                                         ModeCase{L"ID_Parallel_Projection", 4315},
                                         ModeCase{L"ID_Perspective_Projection", 4316}));

struct FunctionCase {
    const wchar_t* id;
    const char* symbol;
    const char* effect;  // while the tool records: what the recording becomes, or a dialog
};

class NavigationFunctionTest : public ToolClicksTest,
                               public testing::WithParamInterface<FunctionCase> {
protected:
    /// Clicks the tool, which only a running navigation tool enables.
    void clickTool() {
        CQrUiToolPanelItem* tool = item(GetParam().id);
        tool->SetState(0);
        click(tool);
    }
};

TEST_P(NavigationFunctionTest, LoadsTheModuleAndCallsItsFunction) {
    clickTool();
    EXPECT_EQ(road(), (Calls{kService, kLoad, kHandle, symbolCall(GetParam().symbol)}));
    EXPECT_TRUE(vxrxServiceIsRegistered(L"ZorqVmTools"));
    EXPECT_TRUE(takeSent().empty());
}

TEST_P(NavigationFunctionTest, ModuleThatIsLoadedIsNotLoadedAgain) {
    loadNavigation();
    takeJournal("call");
    clickTool();
    EXPECT_EQ(road(), (Calls{kService, kHandle, symbolCall(GetParam().symbol)}));
}

TEST_P(NavigationFunctionTest, CallsTheFunction) {
    startOrbit();
    bench().navigation().recordAnimation();
    takeJournal();
    clickTool();
    Calls effects;
    for (const workbench::JournalRecord& record : takeJournal()) {
        if (!record.field("animation").isNil())
            effects.push_back(record.field("animation").asString());
        else if (record.kind == "dialog")
            effects.push_back(record.field("name").asString());
    }
    EXPECT_NE(std::find(effects.begin(), effects.end(), GetParam().effect), effects.end());
    type(L"\x1b");
}

TEST_P(NavigationFunctionTest, ModuleThatIsAwayGivesTheOneBoxWithItsName) {
    bench().faults().hide("VxVmTools.qlx");
    clickTool();
    const std::string text =
        "The navigation tools are not available because VxVmTools.qlx could not be loaded.";
    EXPECT_EQ(road(), (Calls{kService, kLoad, "AfxMessageBox(\"" + text + "\", 48)"}));
    const auto boxes = takeJournal("box");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].field("string"), workbench::Value(1210));
    EXPECT_EQ(boxes[0].field("text"), workbench::Value(text));
}

TEST_P(NavigationFunctionTest, MissingLinkerGivesTheBoxToo) {
    fail("vxrxSysRegistry", {}, 1);
    clickTool();
    EXPECT_EQ(takeTexts("box").size(), 1U);
}

TEST_P(NavigationFunctionTest, MissingSymbolEndsTheClickSilently) {
    bench().faults().hide("VxVmTools.qlx", GetParam().symbol);
    clickTool();
    EXPECT_TRUE(takeTexts("box").empty());
    EXPECT_TRUE(takeSent().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, NavigationFunctionTest,
    testing::Values(FunctionCase{L"ID_Animation_Play", "navPlayAnimation", "playing"},
                    FunctionCase{L"ID_Animation_Record", "navRecordAnimation", "recording"},
                    FunctionCase{L"ID_Animation_Pause", "navPauseRecording", "paused"},
                    FunctionCase{L"ID_Animation_Save", "navSaveAnimation", "Save As"},
                    FunctionCase{L"ID_Animation_Settings", "navShowAnimationSetting",
                                 "Animation Settings"}));

TEST_F(ToolClicksTest, WalkSettingsSendTheirMacroWithoutANavigationTool) {
    click(item(L"ID_3DWalk_Settings"));
    const auto texts = takeSent();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].way, "menu");
    takeJournal();
}

TEST_F(ToolClicksTest, WalkSettingsCallTheModuleWhileANavigationToolRuns) {
    startOrbit();
    click(item(L"ID_3DWalk_Settings"));
    EXPECT_EQ(road(), (Calls{kService, kHandle, symbolCall("navShowWalkSetting")}));
    EXPECT_TRUE(takeSent().empty());
    EXPECT_EQ(takeJournal("dialog").size(), 1U);
    type(L"\x1b");
}

TEST_F(ToolClicksTest, ToolThatRunsAndIsNotHandedOverLeavesTheMacro) {
    loadNavigation();
    takeJournal();
    fail("OrbitInProgress", 1, 1);
    click(item(L"ID_3DWalk"));
    EXPECT_EQ(road(), Calls{});
    const auto texts = takeSent();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].way, "menu");
    type(L"\x1b");
}

// IDs in another case

constexpr const char* kOtherCaseMenu = R"({
  "menuGroups": [{"name": "MAIN"}],
  "panels": [{"menuGroup": "MAIN", "id": "Tools", "title": "Tools", "toolPanels": ["Tools"]}],
  "workspaces": [{"name": "Work", "panels": [{"panel": "Tools", "menuGroup": "MAIN"}]}],
  "currentWorkspace": "Work",
  "toolPanels": [{"menuGroup": "MAIN", "id": "Tools", "items": [
    {"type": "button", "id": "id_3dwalk", "macro": "_walk\n", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "ID_3DWALK_SETTINGS", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "id_animation_play", "module": "VxDashboard.qlx"}]}]
})";

class OtherCaseToolTest : public ToolClicksTest {
protected:
    void SetUp() override {
        useMenu(kOtherCaseMenu);
        ToolClicksTest::SetUp();
    }
};

TEST_F(OtherCaseToolTest, ModeToolSwitchesTheRunningTool) {
    loadNavigation();
    startOrbit();
    click(item(L"id_3dwalk"));
    EXPECT_TRUE(takeSent().empty());
    EXPECT_EQ(bench().navigation().mode(), 17);
    type(L"\x1b");
}

TEST_F(OtherCaseToolTest, WalkSettingsCallTheModule) {
    startOrbit();
    click(item(L"ID_3DWALK_SETTINGS"));
    EXPECT_TRUE(askedFor("navShowWalkSetting"));
    type(L"\x1b");
}

TEST_F(OtherCaseToolTest, AnimationToolCallsItsFunction) {
    click(item(L"id_animation_play"));
    EXPECT_TRUE(askedFor("navPlayAnimation"));
}

// What a click answers

class ClickAnswerTest : public PaletteTest {
protected:
    void SetUp() override {
        load();
        forget();
    }
    /// The answer to a click on an item with menu data, which has a macro or an empty one.
    int click(const wchar_t* id, const wchar_t* macro = L"") {
        VxToolPanelItemData data;
        data.macro = macro;
        CQrUiToolPanelItem item(nullptr);
        item.SetID(id);
        QrUiSetToolPanelItemData(&item, &data);
        return controlManager()->handleToolClick(&item);
    }
    int clickWithoutData(const wchar_t* id) {
        CQrUiToolPanelItem item(nullptr);
        item.SetID(id);
        return controlManager()->handleToolClick(&item);
    }
};

TEST_F(ClickAnswerTest, IsOneForAFunctionThatIsCalledMissingOrOutOfReach) {
    EXPECT_EQ(click(L"ID_Animation_Play"), 1);
    bench().faults().hide("VxVmTools.qlx", "navPlayAnimation");
    EXPECT_EQ(click(L"ID_Animation_Play"), 1);
    bench().modules().unloadModule(L"VxVmTools.qlx");
    bench().faults().hide("VxVmTools.qlx");
    EXPECT_EQ(click(L"ID_Animation_Play"), 1);
}

TEST_F(ClickAnswerTest, IsOneForARunningToolWhetherTheModuleIsThereOrNot) {
    ASSERT_TRUE(bench().navigation().start(workbench::NavigationTool::kFreeOrbit));
    EXPECT_EQ(click(L"ID_3DWalk"), 1);
    EXPECT_EQ(click(L"ID_3DWalk_Settings"), 1);
    bench().faults().hide("VxVmTools.qlx");
    EXPECT_EQ(click(L"ID_3DWalk"), 1);
    EXPECT_EQ(callCount("vxedSendMenuStringToExecute"), 0);
    bench().navigation().stop();
}

TEST_F(ClickAnswerTest, IsOneForALightingTool) {
    for (const wchar_t* id : {L"ID_DefaultLighting", L"ID_Light", L"ID_SunStatus"})
        EXPECT_EQ(click(id), 1);
    EXPECT_EQ(callCount("do_cmd"), 3);
}

class MacroAnswerTest : public ClickAnswerTest,
                        public testing::WithParamInterface<const wchar_t*> {};

TEST_P(MacroAnswerTest, IsOneForASentMacroAndZeroWithoutAMacroOrWithoutData) {
    EXPECT_EQ(click(GetParam()), 0);
    EXPECT_EQ(clickWithoutData(GetParam()), 0);
    EXPECT_EQ(callCount("vxedSendMenuStringToExecute"), 0);
    EXPECT_EQ(click(GetParam(), L"_walk\n"), 1);
    EXPECT_EQ(callCount("vxedSendMenuStringToExecute"), 1);
}

INSTANTIATE_TEST_SUITE_P(Tools, MacroAnswerTest,
                         testing::Values(L"MM_1572", L"ID_3DWalk", L"ID_Perspective_Projection",
                                         L"ID_3DWalk_Settings"));

TEST_F(ClickAnswerTest, IsZeroForASkyThatIsSetAlready) {
    EXPECT_EQ(click(L"ID_Skylight_Off"), 0);
    EXPECT_EQ(callCount("do_cmd"), 0);
    EXPECT_EQ(click(L"ID_Skylight_Background"), 1);
    EXPECT_EQ(callCount("do_cmd"), 1);
    EXPECT_EQ(click(L"ID_Skylight_Background"), 0);
    EXPECT_EQ(callCount("do_cmd"), 1);
}

TEST_F(ClickAnswerTest, IsZeroForASkyThatCannotBeRead) {
    bench().faults().fail("vxedActiveViewportId");
    EXPECT_EQ(click(L"ID_Skylight_Background"), 0);
    EXPECT_EQ(callCount("do_cmd"), 0);
}

TEST_F(ClickAnswerTest, IsOneForAnUnknownIdWhoseMacroIsNotSent) {
    EXPECT_EQ(click(L"ID_Nothing", L"_line\n"), 1);
    EXPECT_EQ(click(L"", L"_line\n"), 1);
    EXPECT_TRUE(sent().empty());
}

}  // namespace
