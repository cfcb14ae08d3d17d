#include "core/resources.h"

#include "core/string_ids.h"
#include "module/module.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/loader/module_loader.h"

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

constexpr UINT kNoSuchString = 65000;

class ResourcesTest : public PaletteTest {
protected:
    /// Has the framework look for resources in a library of somebody else.
    void useForeignLibrary() { AfxSetResourceHandle(iconLibrary()); }
};

TEST_F(ResourcesTest, StringIsLoadedWithTheHandleSwappedAndPutBack) {
    load();
    useForeignLibrary();
    forget();
    EXPECT_FALSE(loadDashboardString(kStrDashboardTitle).empty());
    EXPECT_EQ(takeLines(),
              (Lines{"AfxGetResourceHandle()", "AfxSetResourceHandle(\"VxDashboardRes.dll\")",
                     "LoadString(203)", "AfxSetResourceHandle(\"ZORQbtn.xmx\")"}));
    EXPECT_EQ(AfxGetResourceHandle(), iconLibrary());
}

TEST_F(ResourcesTest, UnknownNumberIsAnEmptyTextAndTheHandleIsPutBack) {
    load();
    useForeignLibrary();
    EXPECT_TRUE(loadDashboardString(kNoSuchString).empty());
    EXPECT_EQ(AfxGetResourceHandle(), iconLibrary());
}

TEST_F(ResourcesTest, FailedStringIsAnEmptyText) {
    load();
    fail("LoadString");
    EXPECT_TRUE(loadDashboardString(kStrDashboardTitle).empty());
}

TEST_F(ResourcesTest, LibraryStandsInTheSearchChainOnce) {
    VxDaResources resources;
    ASSERT_TRUE(resources.load());
    forget();
    resources.attach();
    resources.attach();
    EXPECT_EQ(takeLines(),
              (Lines{"AfxGetResourceHandle()", "AfxInitExtensionModule(\"VxDashboardRes.dll\")"}));
    EXPECT_EQ(bench().modules().resources().attachedCount(), 1U);
    resources.detach();
    resources.detach();
    EXPECT_EQ(takeLines(), Lines{"AfxTermExtensionModule(\"VxDashboardRes.dll\")"});
    EXPECT_EQ(bench().modules().resources().attachedCount(), 0U);
    resources.free();
}

TEST_F(ResourcesTest, LibraryThatWasTakenOutOfTheChainCanStandInItAgain) {
    VxDaResources resources;
    ASSERT_TRUE(resources.load());
    resources.attach();
    resources.detach();
    forget();
    resources.attach();
    EXPECT_EQ(callCount("AfxInitExtensionModule"), 1);
    resources.detach();
    resources.free();
}

TEST_F(ResourcesTest, HandleKeepsItsValueWhenTheLibraryIsGivenBack) {
    VxDaResources resources;
    ASSERT_TRUE(resources.load());
    const HINSTANCE library = resources.library();
    ASSERT_NE(library, nullptr);
    forget();
    resources.free();
    EXPECT_EQ(takeLines(), Lines{"FreeLibrary(\"VxDashboardRes.dll\")"});
    EXPECT_EQ(bench().modules().libraries().find(L"VxDashboardRes.dll"), nullptr);
    EXPECT_EQ(resources.library(), library);
}

TEST_F(ResourcesTest, MissingLibraryIsNoneAndNothingIsGivenBack) {
    bench().faults().hide("VxDashboardRes.dll");
    VxDaResources resources;
    EXPECT_FALSE(resources.load());
    EXPECT_EQ(resources.library(), nullptr);
    EXPECT_NE(GetLastError(), 0U);
    forget();
    resources.free();
    resources.detach();
    EXPECT_TRUE(takeLines().empty());
}

}  // namespace
