#include "tests/support/bench.h"

#include "workbench/navigation/navigation_tool.h"

#include <hostapi/vxdb18.h>
#include <hostapi/zorq.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr int kFirstProjectionMode = 4315;  // parallel; perspective is the next one

class ToolClicksTest : public support::Bench {
protected:
    void SetUp() override {
        showDashboard();
        sent();
        journal();
    }
    void startOrbit() {
        type(L"3DORBIT\n");
        CTool* tool = nullptr;
        ASSERT_TRUE(OrbitInProgress(tool));
        ASSERT_NE(tool, nullptr);
        sent();
        journal();
    }
    void loadNavigation() { ASSERT_TRUE(vxrxLoadModule(L"VxVmTools.qlx", false, true)); }
    /// Fields of the navigation records since the last look.
    std::vector<workbench::JournalRecord> navigation() { return journal("navigation"); }
};

struct ModeCase {
    const wchar_t* id;
    int mode;
};

class NavigationModeTest : public ToolClicksTest, public testing::WithParamInterface<ModeCase> {};

TEST_P(NavigationModeTest, RunsTheMacroWithoutANavigationTool) {
    click(item(GetParam().id));
    const auto texts = sent();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].way, "menu");
    type(L"\x1b");
}

TEST_P(NavigationModeTest, SwitchesTheRunningToolToItsMode) {
    loadNavigation();
    startOrbit();
    click(item(GetParam().id));
    EXPECT_TRUE(sent().empty());
    if (GetParam().mode < kFirstProjectionMode) {
        EXPECT_EQ(bench().navigation().mode(), GetParam().mode);
    } else {
        EXPECT_EQ(var(L"PERSPECTIVE"), workbench::Value(GetParam().mode - kFirstProjectionMode));
    }
    type(L"\x1b");
}

TEST_P(NavigationModeTest, DoesNothingWhileTheModuleIsAway) {
    startOrbit();
    click(item(GetParam().id));
    EXPECT_TRUE(sent().empty());
    EXPECT_TRUE(navigation().empty());
    type(L"\x1b");
}

TEST_P(NavigationModeTest, DoesNothingWhileTheSymbolIsMissing) {
    loadNavigation();
    bench().faults().hide("VxVmTools.qlx", "navSwitchNavMode");
    startOrbit();
    click(item(GetParam().id));
    EXPECT_TRUE(sent().empty());
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
};

class NavigationFunctionTest : public ToolClicksTest,
                               public testing::WithParamInterface<FunctionCase> {
protected:
    /// Whether the module's function was looked up.
    bool askedFor(const std::string& symbol) {
        for (const auto& record : journal("call")) {
            if (record.field("name") != workbench::Value("GetProcAddress"))
                continue;
            for (const workbench::Value& argument : record.field("args").asList()) {
                if (argument == workbench::Value(symbol))
                    return true;
            }
        }
        return false;
    }
};

TEST_P(NavigationFunctionTest, LoadsTheModuleAndCallsItsFunction) {
    click(item(GetParam().id));
    EXPECT_TRUE(vxrxServiceIsRegistered(L"ZorqVmTools"));
    EXPECT_TRUE(askedFor(GetParam().symbol));
    EXPECT_TRUE(sent().empty());
}

TEST_P(NavigationFunctionTest, ModuleThatIsAwayGivesTheOneBoxWithItsName) {
    bench().faults().hide("VxVmTools.qlx");
    click(item(GetParam().id));
    const auto boxes = texts("box");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NE(boxes[0].find("VxVmTools.qlx"), std::string::npos);
}

TEST_P(NavigationFunctionTest, MissingSymbolEndsTheClickSilently) {
    bench().faults().hide("VxVmTools.qlx", GetParam().symbol);
    click(item(GetParam().id));
    EXPECT_TRUE(texts("box").empty());
    EXPECT_TRUE(sent().empty());
}

INSTANTIATE_TEST_SUITE_P(Table, NavigationFunctionTest,
                         testing::Values(FunctionCase{L"ID_Animation_Play", "navPlayAnimation"},
                                         FunctionCase{L"ID_Animation_Record", "navRecordAnimation"},
                                         FunctionCase{L"ID_Animation_Pause", "navPauseRecording"},
                                         FunctionCase{L"ID_Animation_Save", "navSaveAnimation"},
                                         FunctionCase{L"ID_Animation_Settings",
                                                      "navShowAnimationSetting"}));

TEST_F(ToolClicksTest, WalkSettingsSendTheirMacroWithoutANavigationTool) {
    click(item(L"ID_3DWalk_Settings"));
    const auto texts = sent();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].way, "menu");
    journal();
}

TEST_F(ToolClicksTest, WalkSettingsCallTheModuleWhileANavigationToolRuns) {
    startOrbit();
    click(item(L"ID_3DWalk_Settings"));
    EXPECT_TRUE(sent().empty());
    EXPECT_TRUE(vxrxServiceIsRegistered(L"ZorqVmTools"));
    type(L"\x1b");
}

}  // namespace
