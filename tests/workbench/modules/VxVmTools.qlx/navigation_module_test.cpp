#include "tests/workbench/host/test_options.h"
#include "workbench/adapters/host_values.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/editor.h"
#include "workbench/loader/module_loader.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/vxdb18.h>
#include <hostapi/zorq/views.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
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
    void point(const char* name, CTool* tool, drawing::Vec3 to) {
        exported<void (*)(CTool*, double, double, double)>(name)(tool, to.x, to.y, to.z);
    }
    void setLens(CTool* tool, double lens) {
        exported<void (*)(CTool*, double)>("navUpdateLensLength")(tool, lens);
    }
    void restorePreset(CTool* tool, int preset) {
        exported<void (*)(CTool*, int)>("navRestorePresetView")(tool, preset);
    }
    void restoreNamed(CTool* tool, VxDbObjectId view) {
        exported<void (*)(CTool*, VxDbObjectId)>("navRestoreNamedView")(tool, view);
    }
    drawing::Database& data() { return bench.editor().documents().current()->data(); }
    const drawing::ViewParameters& shown() {
        return data().look<drawing::Viewport>(drawing::activeViewport(data()))->view;
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

TEST_F(NavigationModuleTest, TheRunningToolTurnsTheViewOfTheViewport) {
    CTool* tool = navigation().tool();
    setLens(tool, 24);
    EXPECT_EQ(shown().lens, 24);
    point("navUpdateCameraPosition", tool, {10, 0, 0});
    EXPECT_EQ(shown().eye, (drawing::Vec3{10, 0, 0}));
    point("navUpdateCameraTarget", tool, {4, 0, 0});
    EXPECT_EQ(shown().target, (drawing::Vec3{4, 0, 0}));
    restorePreset(tool, 0);
    EXPECT_EQ(shown().eye, (drawing::Vec3{4, 0, 6}));
    restorePreset(tool, 5);
    EXPECT_EQ(shown().eye, (drawing::Vec3{10, 0, 0}));
}

TEST_F(NavigationModuleTest, ANamedViewIsRestoredByItsId) {
    drawing::View view;
    view.name = "Pond";
    view.view.eye = {3, 2, 1};
    restoreNamed(navigation().tool(), toHostId(data().add(view).id));
    EXPECT_EQ(shown(), view.view);
}

TEST_F(NavigationModuleTest, NumbersThatAreNoPresetChangeNothing) {
    const drawing::ViewParameters before = shown();
    for (const int preset : {-1, 10, 11})
        restorePreset(navigation().tool(), preset);
    restoreNamed(navigation().tool(), {});
    EXPECT_EQ(shown(), before);
}

TEST_F(NavigationModuleTest, OnlyTheRunningToolsViewTurns) {
    const drawing::ViewParameters before = shown();
    CTool other(NavigationTool::kPan);
    for (CTool* tool : {static_cast<CTool*>(nullptr), &other}) {
        setLens(tool, 24);
        point("navUpdateCameraPosition", tool, {10, 0, 0});
        point("navUpdateCameraTarget", tool, {4, 0, 0});
        restorePreset(tool, 4);
    }
    EXPECT_EQ(shown(), before);
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
    EXPECT_EQ(isActive(), 1);
    navigation().stop();
    EXPECT_EQ(isActive(), 0);
}

TEST_F(NavigationModuleTest, EachFunctionLeavesARecord) {
    CTool* tool = navigation().tool();
    bench.journal().take();
    switchMode(tool, NavigationTool::kWalk);
    setLens(tool, 24);
    point("navUpdateCameraPosition", tool, {10, 0, 0});
    restorePreset(tool, 99);
    call("navPauseRecording");
    isActive();
    std::vector<std::pair<std::string, Value>> called;
    for (const JournalRecord& record : bench.journal().take("navigation")) {
        if (!record.field("function").isNil())
            called.emplace_back(record.field("function").asString(), record.field("args"));
    }
    EXPECT_EQ(called, (std::vector<std::pair<std::string, Value>>{
                          {"navSwitchNavMode", Value::List{17}},
                          {"navUpdateLensLength", Value::List{24.0}},
                          {"navUpdateCameraPosition", Value::List{10.0, 0.0, 0.0}},
                          {"navRestorePresetView", Value::List{99}},
                          {"navPauseRecording", Value::List{}},
                          {"navIsActive", Value::List{}}}));
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
