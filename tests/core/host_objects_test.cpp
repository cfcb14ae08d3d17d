#include "core/host_objects.h"

#include "tests/support/bench.h"
#include "workbench/loader/module_loader.h"

#include <hostapi/vxdb18.h>
#include <hostapi/zorq/commands.h>
#include <hostapi/zorq/editor.h>

#include <string>

namespace {

class HostObjectsTest : public support::Bench {
protected:
    workbench::SystemRegistry& registry() { return bench().modules().registry(); }
};

TEST_F(HostObjectsTest, EachObjectIsFoundUnderItsEntry) {
    VxRxDictionary& entries = registry().dictionary();
    EXPECT_EQ(dynamicLinker(), entries.at(L"DynamicLinker"));
    EXPECT_EQ(commandStack(), entries.at(L"ZORQ_REGISTERED_COMMANDS"));
    EXPECT_EQ(hostEditor(), entries.at(L"VxEditor"));
    EXPECT_EQ(serviceDictionary(), entries.at(L"ServiceDictionary"));
    EXPECT_NE(dynamicLinker(), nullptr);
    EXPECT_NE(commandStack(), nullptr);
    EXPECT_NE(hostEditor(), nullptr);
    EXPECT_NE(serviceDictionary(), nullptr);
}

TEST_F(HostObjectsTest, EntryOfAnotherClassCountsAsNone) {
    registry().add(L"VxEditor", L"VxRxDynamicLinker", *dynamicLinker());
    EXPECT_EQ(hostEditor(), nullptr);
}

TEST_F(HostObjectsTest, MissingEntryIsNone) {
    registry().remove(L"ZORQ_REGISTERED_COMMANDS");
    EXPECT_EQ(commandStack(), nullptr);
}

TEST_F(HostObjectsTest, WithoutTheRegistryThereIsNothingUntilItIsBack) {
    fail("vxrxSysRegistry");
    EXPECT_EQ(dynamicLinker(), nullptr);
    EXPECT_EQ(commandStack(), nullptr);
    EXPECT_EQ(hostEditor(), nullptr);
    EXPECT_EQ(serviceDictionary(), nullptr);
    bench().faults().unfail("vxrxSysRegistry");
    EXPECT_NE(dynamicLinker(), nullptr);
    EXPECT_NE(commandStack(), nullptr);
    EXPECT_NE(hostEditor(), nullptr);
}

// A host that lacks one of its objects

class MissingObjectTest : public support::Bench, public testing::WithParamInterface<const char*> {};

TEST_P(MissingObjectTest, LeavesTheModuleLoadable) {
    env("ENABLEDASHBOARD", "1");
    fail(GetParam());
    EXPECT_TRUE(load());
    EXPECT_EQ(exported<VxDaInvalidateDashboardFn>("VxDaInvalidateDashboard")(), 0);
}

INSTANTIATE_TEST_SUITE_P(Calls, MissingObjectTest,
                         testing::Values("vxrxSysRegistry", "VxRxDictionary::at", "vxDocManagerPtr",
                                         "vxProfileManagerPtr", "QrUiGetThemeManager",
                                         "vxdbHostApplicationServices"));

class MissingInAGestureTest : public support::Bench,
                              public testing::WithParamInterface<const char*> {};

TEST_P(MissingInAGestureTest, LeavesTheDashboardRunning) {
    showDashboard();
    takeSent();
    fail(GetParam());
    // A toggle, a tool with a macro, and a document that comes and goes.
    click(item(L"ID_DefaultLighting"));
    click(item(L"ID_Camera"));
    newDocument(L"B");
    closeDocument(L"B");
    bench().faults().unfail(GetParam());
    takeSent();
    click(item(L"ID_SunStatus"));
    EXPECT_EQ(takeSent().size(), 1U) << "the next click works again";
}

INSTANTIATE_TEST_SUITE_P(Calls, MissingInAGestureTest,
                         testing::Values("vxDocManagerPtr", "vxutNewRb", "vxedGetVar",
                                         "vxdbHostApplicationServices"));

}  // namespace
