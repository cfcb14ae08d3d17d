#include "tests/light/lighting_fixture.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

using support::Sent;
using workbench::Value;
using Texts = std::vector<Sent>;
using Calls = std::vector<std::string>;

/// The steps of a tool that sends its command itself.
const std::vector<std::string_view> kSteps{"VxAxDocLock::VxAxDocLock",
                                           "vxutNewRb",
                                           "vxedGetVar",
                                           "vxedSetVar",
                                           "do_cmd",
                                           "vxutRelRb",
                                           "VxAxDocLock::~VxAxDocLock",
                                           "VxApDocManager::sendToCommandLine",
                                           "AfxGetMainWnd"};
const std::string kLock = "VxAxDocLock::VxAxDocLock(object, 1)";
const std::string kUnlock = "VxAxDocLock::~VxAxDocLock()";

std::string readCall(const std::string& variable) {
    return "vxedGetVar(\"" + variable + "\")";
}

std::string commandCall(const std::string& text) {
    return "do_cmd(\"_" + text + "\n\", 0, 0, 1)";
}

/// The tools alone, so that nobody else calls the host.
constexpr const char* kLightMenu = R"({
  "menuGroups": [{"name": "MAIN"}],
  "panels": [{"menuGroup": "MAIN", "id": "Lights", "title": "Lights", "toolPanels": ["Lights"]}],
  "workspaces": [{"name": "Work", "panels": [{"panel": "Lights", "menuGroup": "MAIN"}]}],
  "currentWorkspace": "Work",
  "toolPanels": [{"menuGroup": "MAIN", "id": "Lights", "items": [
    {"type": "button", "id": "ID_DefaultLighting", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "ID_SunStatus", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "ID_Light", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "ID_Skylight_Off", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "ID_Skylight_Background", "module": "VxDashboard.qlx"},
    {"type": "button", "id": "ID_Skylight_Illumination", "module": "VxDashboard.qlx"}]}]
})";

class LightStepsTest : public LightingToolsTest {
protected:
    void SetUp() override {
        useMenu(kLightMenu);
        LightingToolsTest::SetUp();
    }
    Calls steps() { return takeCallLines(kSteps); }
    /// The steps of a click from its lock on.
    Calls stepsOf(const wchar_t* id) {
        takeJournal();
        clickTool(id);
        Calls made = steps();
        made.erase(made.begin(), std::find(made.begin(), made.end(), kLock));
        takeSent();
        return made;
    }
};

struct BareCase {
    const wchar_t* id;
    const char* command;
};

class BareStepsTest : public LightStepsTest, public testing::WithParamInterface<BareCase> {
protected:
    /// A click reads these variables and sends the command for the user to answer, no more.
    void expectReadAndSent(const std::vector<std::string>& read) {
        takeJournal();
        clickTool(GetParam().id);
        Calls expected;
        for (const std::string& variable : read)
            expected.push_back(readCall(variable));
        expected.push_back(std::string("VxApDocManager::sendToCommandLine(object, \"_") +
                           GetParam().command + "\", false, true, true)");
        EXPECT_EQ(steps(), expected);
        takeSent();
        type(L"\x1b");
    }
};

TEST_P(BareStepsTest, PaperSpaceReadsNoVariableOfTheTool) {
    goToPaperSpace();
    expectReadAndSent({"TILEMODE", "CVPORT"});
}

TEST_P(BareStepsTest, BlockEditorIsAskedForInModelSpaceAlone) {
    set(L"BLOCKEDITOR", 1);
    expectReadAndSent({"TILEMODE", "BLOCKEDITOR"});
}

INSTANTIATE_TEST_SUITE_P(Tools, BareStepsTest,
                         testing::Values(BareCase{L"ID_DefaultLighting", "defaultlighting"},
                                         BareCase{L"ID_Light", "lightglyphdisplay"},
                                         BareCase{L"ID_SunStatus", "sunstatus"}));

struct FlipCase {
    const wchar_t* id;
    const wchar_t* variable;
    const char* name;
    const char* command;
};

class FlipStepsTest : public LightStepsTest, public testing::WithParamInterface<FlipCase> {};

TEST_P(FlipStepsTest, LockReadSendReleaseUnlock) {
    for (const int before : {0, 1}) {
        set(GetParam().variable, before);
        EXPECT_EQ(
            stepsOf(GetParam().id),
            (Calls{kLock, "vxutNewRb(5003)", readCall(GetParam().name),
                   commandCall(std::string(GetParam().command) + "\n" + std::to_string(1 - before)),
                   "vxutRelRb(object)", kUnlock}));
    }
}

TEST_P(FlipStepsTest, WithoutABufferNothingIsSentAndTheLockEnds) {
    fail("vxutNewRb");
    EXPECT_EQ(stepsOf(GetParam().id), (Calls{kLock, "vxutNewRb(5003)", kUnlock}));
}

INSTANTIATE_TEST_SUITE_P(Tools, FlipStepsTest,
                         testing::Values(FlipCase{L"ID_DefaultLighting", L"DEFAULTLIGHTING",
                                                  "DEFAULTLIGHTING", "defaultlighting"},
                                         FlipCase{L"ID_Light", L"LIGHTGLYPHDISPLAY",
                                                  "LIGHTGLYPHDISPLAY", "lightglyphdisplay"}));

TEST_F(LightStepsTest, SunIsReadUnderTheLockAndWithoutABuffer) {
    set(L"SUNSTATUS", 0);
    EXPECT_EQ(stepsOf(L"ID_SunStatus"),
              (Calls{kLock, readCall("SUNSTATUS"), commandCall("sunstatus\n1"), kUnlock}));
    set(L"SUNSTATUS", 1);
    EXPECT_EQ(stepsOf(L"ID_SunStatus"),
              (Calls{kLock, readCall("SUNSTATUS"), commandCall("sunstatus\n0"), kUnlock}));
}

TEST_F(LightStepsTest, SkyIsSetUnderTheLockAndTheMainWindowActivatedAfterwards) {
    set(L"PERSPECTIVE", 1);
    EXPECT_EQ(stepsOf(L"ID_Skylight_Background"),
              (Calls{kLock, readCall("PERSPECTIVE"), commandCall("skystatus\n1"), kUnlock,
                     "AfxGetMainWnd()"}));
}

TEST_F(LightStepsTest, PerspectiveIsTurnedOnUnderTheLockBeforeTheSky) {
    set(L"PERSPECTIVE", 0);
    EXPECT_EQ(stepsOf(L"ID_Skylight_Illumination"),
              (Calls{kLock, readCall("PERSPECTIVE"), "vxedSetVar(\"PERSPECTIVE\", 1)",
                     commandCall("skystatus\n2"), kUnlock, "AfxGetMainWnd()"}));
}

TEST_F(LightStepsTest, SecondClickDuringACommandCancelsOnceMore) {
    set(L"DEFAULTLIGHTING", 0);
    begin(L"LINE");
    clickTool(L"ID_DefaultLighting");
    EXPECT_EQ(takeSent(), (Texts{{"\x03\x03", "cancel"}}));
    clickTool(L"ID_DefaultLighting");
    EXPECT_EQ(takeSent(), (Texts{{"\x03\x03", "cancel"}}));
    idle();
    EXPECT_EQ(takeSent(),
              (Texts{{"_defaultlighting\n1\n", "do_cmd"}, {"_defaultlighting\n0\n", "do_cmd"}}));
}

}  // namespace
