#include "tests/support/bench.h"

#include <optional>
#include <string>

namespace {

struct EnablingCase {
    std::optional<std::string> value;  // nothing: the variable is not set
    bool enabled;
};

class CommandsTest : public support::Bench, public testing::WithParamInterface<EnablingCase> {};

/// Whether the module answers to a command, which a palette set coming up shows.
TEST_P(CommandsTest, ExistOnlyWhenTheEnvironmentSaysSo) {
    env("ENABLEDASHBOARD", GetParam().value);
    ASSERT_TRUE(load());
    newDocument(L"A");
    type(L"DASHBOARDOLD\n");
    EXPECT_EQ(paletteSet() != nullptr, GetParam().enabled);
    journal();
    type(L"VIEWBACK\n");
    bool zoomedBack = false;
    for (const std::string& call : calls())
        zoomedBack |= call == "vxInternalZoomBack";
    EXPECT_EQ(zoomedBack, GetParam().enabled);
}

INSTANTIATE_TEST_SUITE_P(Values, CommandsTest,
                         testing::Values(EnablingCase{std::nullopt, false}, EnablingCase{"", false},
                                         EnablingCase{"0", false}, EnablingCase{"1", true},
                                         EnablingCase{"Yes", true}, EnablingCase{"YES", true},
                                         EnablingCase{"yes", true}, EnablingCase{"yEs", true},
                                         EnablingCase{"true", false}, EnablingCase{"yes ", false},
                                         EnablingCase{"2", false}, EnablingCase{"On", false}));

class RegisteredCommandsTest : public support::Bench {};

TEST_F(RegisteredCommandsTest, ShowCommandIsRegisteredBeforeTheStepBack) {
    env("ENABLEDASHBOARD", "1");
    ASSERT_TRUE(load());
    std::vector<std::string> names;
    for (const workbench::JournalRecord& record : journal("call")) {
        if (record.field("name") != workbench::Value("VxEdCommandStack::addCommand"))
            continue;
        const auto& arguments = record.field("args").asList();
        EXPECT_EQ(arguments.at(0), workbench::Value("ZorqVxDashboard"));
        names.push_back(arguments.at(1).asString());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"DASHBOARDOLD", "VIEWBACK"}));
}

TEST_F(RegisteredCommandsTest, ControlsCanBeMadeWithoutTheCommands) {
    useMenu(R"({"menuGroups":[{"name":"G"}],"panels":[],"toolPanels":[]})");
    ASSERT_TRUE(load());
    newDocument(L"A");
    CQrUiToolPanel parent;
    ASSERT_TRUE(parent.Create(WS_CHILD | WS_VISIBLE, {0, 0, 200, 100}, AfxGetMainWnd(), 1, 0));
    const auto getControl = exported<VxDaGetCustomControlFn>("VxDaGetCustomControl");
    EXPECT_NE(getControl(L"LayerLockTransparencySliderControl", parent.m_hWnd), nullptr);
    unload();
}

TEST_F(RegisteredCommandsTest, TransparentShowRunsInsideAnotherCommand) {
    env("ENABLEDASHBOARD", "1");
    ASSERT_TRUE(load());
    newDocument(L"A");
    begin(L"LINE");
    type(L"'DASHBOARDOLD\n");
    EXPECT_NE(paletteSet(), nullptr);
    finish();
}

}  // namespace
