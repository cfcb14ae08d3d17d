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
    takeJournal();
    type(L"VIEWBACK\n");
    bool zoomedBack = false;
    for (const std::string& call : takeCalls())
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

TEST_F(RegisteredCommandsTest, ShowCommandIsRegisteredBeforeTheStepBackEachWithItsFlags) {
    using Arguments = workbench::Value::List;
    env("ENABLEDASHBOARD", "1");
    ASSERT_TRUE(load());
    std::vector<Arguments> commands;
    std::vector<Arguments> strings;
    for (const workbench::JournalRecord& record : takeJournal("call")) {
        if (record.field("name") == workbench::Value("LoadString"))
            strings.push_back(record.field("args").asList());
        if (record.field("name") == workbench::Value("VxEdCommandStack::addCommand"))
            commands.push_back(record.field("args").asList());
    }
    const workbench::Value nothing;
    EXPECT_EQ(commands,
              (std::vector<Arguments>{
                  {"ZorqVxDashboard", "DASHBOARDOLD", "DASHBOARDOLD", 3, true, nothing, -1, false},
                  {"ZorqVxDashboard", "VIEWBACK", "VIEWBACK", 1, true, nothing, -1, false}}));
    EXPECT_EQ(strings, std::vector<Arguments>{Arguments{201}}) << "the local name of the first";
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
