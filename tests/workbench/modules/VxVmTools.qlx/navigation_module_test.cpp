#include "tests/workbench/loader/test_options.h"

#include "workbench/editor/editor.h"
#include "workbench/loader/module_loader.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/vxdb18.h>
#include <hostapi/zorq/views.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace workbench {

class NavigationModuleTest : public testing::Test {
protected:
    static constexpr const wchar_t* kModule = L"VxVmTools.qlx";

    void SetUp() override {
        bench.editor().documents().create(L"Drawing1");
        ASSERT_TRUE(bench.modules().loadModule(kModule)) << bench.modules().failureText();
        navigation().start(NavigationTool::kFreeOrbit);
    }

    NavigationTool& navigation() { return bench.navigation(); }
    template <class Function>
    Function exported(const char* name) {
        LibraryTable& libraries = bench.modules().libraries();
        return reinterpret_cast<Function>(libraries.symbol(libraries.find(kModule), name));
    }
    void call(const char* name) { exported<void (*)()>(name)(); }
    void switchMode(CTool* tool, int mode) {
        exported<void (*)(CTool*, int)>("navSwitchNavMode")(tool, mode);
    }
    int isActive() { return exported<int (*)()>("navIsActive")(); }
    std::vector<std::string> dialogs() {
        std::vector<std::string> names;
        for (const JournalRecord& record : bench.journal().take("dialog"))
            names.push_back(record.field("name").asString());
        return names;
    }

    Workbench bench{testOptions()};
};

TEST_F(NavigationModuleTest, TheRunningToolChangesItsMode) {
    switchMode(navigation().tool(), NavigationTool::kWalk);
    EXPECT_EQ(navigation().mode(), NavigationTool::kWalk);
}

TEST_F(NavigationModuleTest, NoToolAndAnotherToolChangeNothing) {
    CTool other(NavigationTool::kPan);
    switchMode(nullptr, NavigationTool::kWalk);
    switchMode(&other, NavigationTool::kWalk);
    EXPECT_EQ(navigation().mode(), NavigationTool::kFreeOrbit);
}

TEST_F(NavigationModuleTest, RecordingGoesFromIdleToPaused) {
    EXPECT_EQ(isActive(), 0);
    call("navPauseRecording");
    EXPECT_EQ(isActive(), 0);
    call("navRecordAnimation");
    EXPECT_EQ(isActive(), 2);
    call("navPauseRecording");
    EXPECT_EQ(isActive(), 1);
    call("navRecordAnimation");
    EXPECT_EQ(isActive(), 2);
    call("navPlayAnimation");
    EXPECT_EQ(isActive(), 0);
    EXPECT_EQ(navigation().animation(), AnimationState::Playing);
}

TEST_F(NavigationModuleTest, DialogsOpen) {
    call("navShowWalkSetting");
    call("navShowAnimationSetting");
    EXPECT_EQ(dialogs().size(), 2U);
    call("navSaveAnimation");
    EXPECT_TRUE(dialogs().empty());
    call("navRecordAnimation");
    call("navSaveAnimation");
    EXPECT_EQ(dialogs().size(), 1U);
}

TEST_F(NavigationModuleTest, TheServiceGoesWithTheModule) {
    EXPECT_TRUE(vxrxServiceIsRegistered(L"ZorqVmTools"));
    EXPECT_TRUE(bench.modules().unloadModule(kModule));
    EXPECT_FALSE(vxrxServiceIsRegistered(L"ZorqVmTools"));
    EXPECT_TRUE(bench.modules().libraries().stillMapped().empty());
}

}  // namespace workbench
