#include "light/lighting_tools.h"

#include "tests/light/lighting_fixture.h"
#include "tests/palette/palette_fixture.h"

#include <hostapi/zorq.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using support::Sent;
using workbench::Value;
using Texts = std::vector<Sent>;

struct ToggleCase {
    const wchar_t* id;
    const wchar_t* variable;
    const char* command;
};

class LightToggleTest : public LightingToolsTest, public testing::WithParamInterface<ToggleCase> {
protected:
    std::string bare() const { return std::string("_") + GetParam().command; }
    Sent full(int state) const { return {bare() + "\n" + std::to_string(state) + "\n", "do_cmd"}; }
};

TEST_P(LightToggleTest, ClickAtRestTurnsTheVariableOverAtOnce) {
    set(GetParam().variable, 0);
    clickTool(GetParam().id);
    EXPECT_EQ(takeSent(), Texts{full(1)});
    EXPECT_EQ(number(GetParam().variable), 1);
    clickTool(GetParam().id);
    EXPECT_EQ(takeSent(), Texts{full(0)});
    EXPECT_EQ(number(GetParam().variable), 0);
}

TEST_P(LightToggleTest, ClickDuringACommandCancelsItAndWaitsForTheQuietMoment) {
    set(GetParam().variable, 0);
    begin(L"LINE");
    clickTool(GetParam().id);
    EXPECT_EQ(takeSent(), (Texts{{"\x03\x03", "cancel"}}));
    EXPECT_NE(number(L"CMDACTIVE"), 0) << "it was told to stop and has not stopped yet";
    EXPECT_EQ(number(GetParam().variable), 0);
    idle();
    EXPECT_EQ(takeSent(), Texts{full(1)});
    EXPECT_EQ(number(L"CMDACTIVE"), 0);
    EXPECT_EQ(number(GetParam().variable), 1);
}

TEST_P(LightToggleTest, TwoClicksDuringACommandRunInOrderAndTheSecondUndoesTheFirst) {
    set(GetParam().variable, 0);
    begin(L"LINE");
    clickTool(GetParam().id);
    clickTool(GetParam().id);
    takeSent();
    idle();
    EXPECT_EQ(takeSent(), (Texts{full(1), full(0)}));
    EXPECT_EQ(number(GetParam().variable), 0);
}

TEST_P(LightToggleTest, PaperSpaceSendsTheBareCommandAndTouchesNoVariable) {
    set(GetParam().variable, 0);
    goToPaperSpace();
    clickTool(GetParam().id);
    EXPECT_EQ(takeSent(), (Texts{{bare(), "line"}}));
    EXPECT_EQ(number(GetParam().variable), 0);
    type(L"\x1b");
}

TEST_P(LightToggleTest, BlockEditorSendsTheBareCommandInModelSpaceToo) {
    set(L"BLOCKEDITOR", 1);
    clickTool(GetParam().id);
    EXPECT_EQ(takeSent(), (Texts{{bare(), "line"}}));
    type(L"\x1b");
}

TEST_P(LightToggleTest, FocusGoesToTheCommandLineBeforeTheCancel) {
    begin(L"LINE");
    clickTool(GetParam().id);
    EXPECT_EQ(CWnd::GetFocus(), vxedGetZorqDockCmdLine());
    takeSent();
    idle();
    takeSent();
}

TEST_P(LightToggleTest, ClosingTheDocumentDropsWhatWaits) {
    newDocument(L"B");
    begin(L"LINE");
    clickTool(GetParam().id);
    takeSent();
    closeDocument(L"B");
    idle();
    EXPECT_TRUE(takeSent().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Tools, LightToggleTest,
    testing::Values(ToggleCase{L"ID_DefaultLighting", L"DEFAULTLIGHTING", "defaultlighting"},
                    ToggleCase{L"ID_Light", L"LIGHTGLYPHDISPLAY", "lightglyphdisplay"},
                    ToggleCase{L"ID_SunStatus", L"SUNSTATUS", "sunstatus"}));

TEST_F(LightingToolsTest, UnreadableSunStatusSendsZero) {
    set(L"SUNSTATUS", 0);
    fail("vxedGetVar:SUNSTATUS");
    clickTool(L"ID_SunStatus");
    EXPECT_EQ(takeSent(), (Texts{{"_sunstatus\n0\n", "do_cmd"}}));
}

TEST_F(LightingToolsTest, UnreadableDefaultLightingSendsOne) {
    set(L"DEFAULTLIGHTING", 1);
    fail("vxedGetVar:DEFAULTLIGHTING");
    clickTool(L"ID_DefaultLighting");
    EXPECT_EQ(takeSent(), (Texts{{"_defaultlighting\n1\n", "do_cmd"}}));
}

// What the functions answer

class LightAnswerTest : public PaletteTest {
protected:
    void SetUp() override {
        load();
        forget();
    }
};

TEST_F(LightAnswerTest, ToggleIsOneOnEveryRoad) {
    EXPECT_EQ(clickLightingTool(L"ID_Light"), 1);
    ASSERT_TRUE(bench().editor().set(L"TILEMODE", 0));
    EXPECT_EQ(clickLightingTool(L"ID_Light"), 1);
}

TEST_F(LightAnswerTest, SkyThatWouldStayIsZeroAndAsksForNothing) {
    EXPECT_EQ(clickLightingTool(L"ID_Skylight_Off"), 0);
    EXPECT_EQ(callCount("VxAxDocLock::VxAxDocLock"), 0);
    EXPECT_EQ(clickLightingTool(L"ID_Skylight_Background"), 1);
}

TEST_F(LightAnswerTest, ToolOfAnotherFamilyIsNone) {
    EXPECT_FALSE(clickLightingTool(L"ID_Camera").has_value());
    EXPECT_FALSE(clickLightingTool(L"").has_value());
    EXPECT_EQ(callCount("VxAxDocLock::VxAxDocLock"), 0);
}

// The sky

struct SkyCase {
    int before;  // SKYSTATUS: 0 off, 1 background, 2 background and illumination
    const wchar_t* id;
    const char* text;  // null: nothing is sent
    int after;
};

class SkyTest : public LightingToolsTest, public testing::WithParamInterface<SkyCase> {};

TEST_P(SkyTest, ClickSendsTheNewStateOnlyIfItDiffers) {
    set(L"PERSPECTIVE", 1);
    type(L"SKYSTATUS\n" + std::to_wstring(GetParam().before) + L"\n");
    takeSent();
    clickTool(GetParam().id);
    const Texts expected =
        GetParam().text == nullptr ? Texts{} : Texts{{GetParam().text, "do_cmd"}};
    EXPECT_EQ(takeSent(), expected);
    EXPECT_EQ(number(L"SKYSTATUS"), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    States, SkyTest,
    testing::Values(SkyCase{0, L"ID_Skylight_Off", nullptr, 0},
                    SkyCase{0, L"ID_Skylight_Background", "_skystatus\n1\n", 1},
                    SkyCase{0, L"ID_Skylight_Illumination", "_skystatus\n2\n", 2},
                    SkyCase{1, L"ID_Skylight_Off", "_skystatus\n0\n", 0},
                    SkyCase{1, L"ID_Skylight_Background", nullptr, 1},
                    SkyCase{1, L"ID_Skylight_Illumination", "_skystatus\n2\n", 2},
                    SkyCase{2, L"ID_Skylight_Off", "_skystatus\n0\n", 0},
                    SkyCase{2, L"ID_Skylight_Background", "_skystatus\n1\n", 1},
                    SkyCase{2, L"ID_Skylight_Illumination", nullptr, 2}));

TEST_F(LightingToolsTest, SkyInAParallelViewTurnsPerspectiveOn) {
    set(L"PERSPECTIVE", 0);
    clickTool(L"ID_Skylight_Background");
    EXPECT_EQ(number(L"PERSPECTIVE"), 1);
    EXPECT_EQ(takeSent(), (Texts{{"_skystatus\n1\n", "do_cmd"}}));
}

TEST_F(LightingToolsTest, SkyOffLeavesAParallelViewAlone) {
    type(L"SKYSTATUS\n2\n");
    set(L"PERSPECTIVE", 0);
    takeSent();
    clickTool(L"ID_Skylight_Off");
    EXPECT_EQ(number(L"PERSPECTIVE"), 0);
    EXPECT_EQ(takeSent().size(), 1U);
}

TEST_F(LightingToolsTest, SkyDuringACommandCancelsItAndWaitsForTheQuietMoment) {
    set(L"PERSPECTIVE", 1);
    begin(L"LINE");
    clickTool(L"ID_Skylight_Background");
    EXPECT_EQ(takeSent(), (Texts{{"\x03\x03", "cancel"}}));
    EXPECT_EQ(number(L"SKYSTATUS"), 0);
    idle();
    EXPECT_EQ(takeSent(), (Texts{{"_skystatus\n1\n", "do_cmd"}}));
    EXPECT_EQ(number(L"SKYSTATUS"), 1);
}

TEST_F(LightingToolsTest, SkysLockEndsAfterTheCommandAndBeforeTheMainWindowIsActivated) {
    takeJournal();
    clickTool(L"ID_Skylight_Background");
    const std::vector<std::string> made = takeCalls();
    const auto command = std::find(made.begin(), made.end(), "do_cmd");
    const auto unlock = std::find(command, made.end(), "VxAxDocLock::~VxAxDocLock");
    ASSERT_NE(unlock, made.end());
    EXPECT_EQ(std::find(made.begin(), unlock, "AfxGetMainWnd"), unlock);
    EXPECT_NE(std::find(unlock, made.end(), "AfxGetMainWnd"), made.end());
    takeSent();
}

TEST_F(LightingToolsTest, UnreadableSkySendsNothing) {
    fail("vxedActiveViewportId");
    clickTool(L"ID_Skylight_Background");
    EXPECT_TRUE(takeSent().empty());
}

// IDs in another case

constexpr const char* kOtherCaseMenu = R"({
  "menuGroups": [{"name": "MAIN"}],
  "panels": [{"menuGroup": "MAIN", "id": "Lights", "title": "Lights", "toolPanels": ["Lights"]}],
  "workspaces": [{"name": "Work", "panels": [{"panel": "Lights", "menuGroup": "MAIN"}]}],
  "currentWorkspace": "Work",
  "toolPanels": [{"menuGroup": "MAIN", "id": "Lights", "items": [
    {"type": "button", "id": "ID_DEFAULTLIGHTING", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "id_sunstatus", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "id_light", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "ID_SKYLIGHT_OFF", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "id_skylight_background", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "id_skylight_ILLUMINATION", "module": "VxDashboard.qlx"}]}]
})";

struct OtherCase {
    const wchar_t* id;
    int sky;  // SKYSTATUS before
    const char* text;
};

class OtherCaseLightTest : public LightingToolsTest, public testing::WithParamInterface<OtherCase> {
protected:
    void SetUp() override {
        useMenu(kOtherCaseMenu);
        LightingToolsTest::SetUp();
    }
};

TEST_P(OtherCaseLightTest, ActsAsItsTool) {
    for (const wchar_t* variable : {L"DEFAULTLIGHTING", L"SUNSTATUS", L"LIGHTGLYPHDISPLAY"})
        set(variable, 0);
    type(L"SKYSTATUS\n" + std::to_wstring(GetParam().sky) + L"\n");
    takeSent();
    clickTool(GetParam().id);
    EXPECT_EQ(takeSent(), (Texts{{GetParam().text, "do_cmd"}}));
}

INSTANTIATE_TEST_SUITE_P(
    Ids, OtherCaseLightTest,
    testing::Values(OtherCase{L"ID_DEFAULTLIGHTING", 0, "_defaultlighting\n1\n"},
                    OtherCase{L"id_sunstatus", 0, "_sunstatus\n1\n"},
                    OtherCase{L"id_light", 0, "_lightglyphdisplay\n1\n"},
                    OtherCase{L"ID_SKYLIGHT_OFF", 2, "_skystatus\n0\n"},
                    OtherCase{L"id_skylight_background", 2, "_skystatus\n1\n"},
                    OtherCase{L"id_skylight_ILLUMINATION", 1, "_skystatus\n2\n"}));

}  // namespace
