#include "core/resources.h"

#include "core/string_ids.h"
#include "tests/palette/palette_fixture.h"

#include <string>
#include <vector>

namespace {

constexpr UINT kNoSuchString = 65000;

class ResourcesTest : public PaletteTest {
protected:
    std::vector<std::string> takeCalls() {
        std::vector<std::string> names;
        for (const workbench::JournalRecord& record : bench().journal().take("call"))
            names.push_back(record.field("name").asString());
        return names;
    }
};

TEST_F(ResourcesTest, StringIsLoadedWithTheHandleSwappedAndPutBack) {
    load();
    const HINSTANCE before = AfxGetResourceHandle();
    forget();
    EXPECT_FALSE(loadDashboardString(kStrDashboardTitle).empty());
    EXPECT_EQ(takeCalls(), (std::vector<std::string>{"AfxGetResourceHandle", "AfxSetResourceHandle",
                                                 "LoadString", "AfxSetResourceHandle"}));
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST_F(ResourcesTest, UnknownNumberIsAnEmptyTextAndTheHandleIsPutBack) {
    load();
    const HINSTANCE before = AfxGetResourceHandle();
    EXPECT_TRUE(loadDashboardString(kNoSuchString).empty());
    EXPECT_EQ(AfxGetResourceHandle(), before);
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
    EXPECT_EQ(callCount("AfxInitExtensionModule"), 1);
    resources.detach();
    resources.detach();
    EXPECT_EQ(callCount("AfxTermExtensionModule"), 1);
    resources.free();
}

TEST_F(ResourcesTest, HandleKeepsItsValueWhenTheLibraryIsGivenBack) {
    VxDaResources resources;
    ASSERT_TRUE(resources.load());
    const HINSTANCE library = resources.library();
    resources.free();
    EXPECT_EQ(resources.library(), library);
    EXPECT_NE(library, nullptr);
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
    EXPECT_TRUE(takeCalls().empty());
}

}  // namespace
