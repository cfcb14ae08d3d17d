#include "workbench/loader/resource_search.h"

#include "tests/workbench/loader/loader_fixture.h"

#include <hostapi/window/gdi.h>
#include <hostapi/window/module.h>

namespace workbench {

class ResourceSearchTest : public LoaderTest {
protected:
    void SetUp() override {
        library = LoadLibrary(kResources);
        ASSERT_NE(library, nullptr);
    }

    HINSTANCE library = nullptr;
};

TEST_F(ResourceSearchTest, StringsComeFromTheCurrentLibrary) {
    VxString text = L"before";
    EXPECT_EQ(LoadString(203, text), 0);
    EXPECT_EQ(text, L"before");

    AfxSetResourceHandle(library);
    EXPECT_EQ(AfxGetResourceHandle(), library);
    EXPECT_NE(LoadString(203, text), 0);
    EXPECT_NE(text, L"before");
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(modules().strings().resourceNumberOf(text), 203);
}

TEST_F(ResourceSearchTest, AMissingStringLeavesTheTextAlone) {
    AfxSetResourceHandle(library);
    VxString text = L"before";
    EXPECT_EQ(LoadString(999999, text), 0);
    EXPECT_EQ(text, L"before");
    faults().fail("LoadString", {}, 1);
    EXPECT_EQ(LoadString(203, text), 0);
    EXPECT_EQ(text, L"before");
}

TEST_F(ResourceSearchTest, ACurrentLibraryThatWasClosedHasNoStrings) {
    AfxSetResourceHandle(library);
    FreeLibrary(library);
    VxString text;
    EXPECT_EQ(LoadString(203, text), 0);
}

TEST_F(ResourceSearchTest, ALibraryIsAttachedOnce) {
    AFX_EXTENSION_MODULE record;
    AfxSetResourceHandle(library);
    EXPECT_NE(AfxInitExtensionModule(record, library), 0);
    EXPECT_TRUE(record.attached);
    EXPECT_EQ(record.library, library);
    EXPECT_EQ(record.resourceHandle, library);
    EXPECT_EQ(AfxInitExtensionModule(record, library), 0);
    EXPECT_EQ(modules().resources().attachedCount(), 1U);

    AfxTermExtensionModule(record);
    EXPECT_FALSE(record.attached);
    EXPECT_EQ(modules().resources().attachedCount(), 0U);
}

TEST_F(ResourceSearchTest, AStringThatTheCurrentLibraryLacksIsSearchedInTheAttachedOnes) {
    const HINSTANCE other = LoadLibrary(L"VxTp.qlx");
    ASSERT_NE(other, nullptr);
    VxString text;
    AFX_EXTENSION_MODULE record;
    AfxInitExtensionModule(record, library);
    AfxSetResourceHandle(other);
    EXPECT_NE(LoadString(203, text), 0);
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(modules().strings().resourceNumberOf(text), 203);

    AfxTermExtensionModule(record);
    EXPECT_EQ(LoadString(203, text), 0);
    FreeLibrary(other);
}

TEST_F(ResourceSearchTest, TheRecordSaysWhereTheResourcesOfALibraryAre) {
    const HINSTANCE other = LoadLibrary(L"VxTp.qlx");
    VxString text;
    AFX_EXTENSION_MODULE record;
    AfxSetResourceHandle(library);
    AfxInitExtensionModule(record, other);
    AfxSetResourceHandle(nullptr);
    EXPECT_NE(LoadString(203, text), 0);
    AfxTermExtensionModule(record);
    FreeLibrary(other);
}

TEST_F(ResourceSearchTest, AFaultCanNameAString) {
    AfxSetResourceHandle(library);
    faults().fail("LoadString:203");
    VxString text = L"before";
    EXPECT_EQ(LoadString(203, text), 0);
    EXPECT_EQ(text, L"before");
    EXPECT_NE(LoadString(204, text), 0);
    faults().unfail("LoadString:203");
    EXPECT_NE(LoadString(203, text), 0);
}

TEST_F(ResourceSearchTest, ABitmapComesFromTheCurrentLibraryByItsNumber) {
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.LoadBitmap(1291));
    EXPECT_EQ(bitmap.GetPixel(0, 0), CLR_INVALID);
    AfxSetResourceHandle(library);
    EXPECT_FALSE(bitmap.LoadBitmap(999999));
    EXPECT_TRUE(bitmap.LoadBitmap(1291));
    EXPECT_FALSE(bitmap.LoadBitmap(1291));
    EXPECT_EQ(bitmap.GetPixel(0, 0), 0xff00ffU);
    EXPECT_EQ(bitmap.GetPixel(16, 0), CLR_INVALID);
}

}  // namespace workbench
