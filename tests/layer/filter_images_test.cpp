#include "layer/filter_images.h"

#include "tests/layer/layer_filter_fixture.h"
#include "workbench/windows/window_system.h"

namespace {

class FilterImagesTest : public LayerFilterTest {
protected:
    void SetUp() override {
        LayerFilterTest::SetUp();
        env("ENABLEDASHBOARD", "1");
        ASSERT_TRUE(load());
        m_images = std::make_unique<FilterImages>();
        takeJournal();
    }
    FilterImages& images() { return *m_images; }

private:
    std::unique_ptr<FilterImages> m_images;
};

TEST_F(FilterImagesTest, MergedListIsWhiteBehindItsPictures) {
    FilterImages made;
    EXPECT_EQ(takeCallLines({"CImageList::Create"}),
              Calls{"CImageList::Create(16, 16, 25, 0, 32)"});
    EXPECT_EQ(made.merged().SetBkColor(0), 0xFFFFFFU);
}

TEST_F(FilterImagesTest, EachRequestAppendsAPictureAlsoOneItHasAlready) {
    EXPECT_EQ(images().filterImageIndex(nullptr, 0), 0);
    EXPECT_EQ(images().filterImageIndex(nullptr, 0), 1);
    EXPECT_EQ(images().filterImageIndex(nullptr, 2), 2);
    EXPECT_EQ(images().merged().GetImageCount(), 3);
}

TEST_F(FilterImagesTest, BuiltInStripIsMadeOnceOnFirstNeed) {
    images().filterImageIndex(nullptr, 0);
    EXPECT_EQ(takeCallLines({"CImageList::Create", "CBitmap::LoadBitmap", "CImageList::Add"}),
              (Calls{"CImageList::Create(16, 16, 25, 0, 32)", "CBitmap::LoadBitmap(1290)",
                     "CImageList::Add(object, 16711935)"}));
    images().filterImageIndex(nullptr, 1);
    EXPECT_EQ(takeCallLines({"CImageList::Create", "CBitmap::LoadBitmap"}), Calls{});
    EXPECT_EQ(images().builtInImages().GetImageCount(), 5);
}

TEST_F(FilterImagesTest, ForeignListIsWrappedForTheCopyAndHandedBack) {
    CImageList foreign;
    ASSERT_TRUE(foreign.Create(16, 16, 25, 1, 1));
    foreign.SetImageCount(1);
    const HIMAGELIST handle = foreign.m_hImageList;
    EXPECT_EQ(images().filterImageIndex(handle, 0), 0);
    EXPECT_EQ(foreign.m_hImageList, handle);
    EXPECT_EQ(foreign.GetImageCount(), 1);
    EXPECT_EQ(takeCallLines({"CBitmap::LoadBitmap"}), Calls{}) << "the strip isn't needed";
}

TEST_F(FilterImagesTest, IconsOfTheCopiesAreGivenBack) {
    const std::size_t before = bench().windows().gdi().iconCount();
    images().filterImageIndex(nullptr, 0);
    images().filterImageIndex(nullptr, 3);
    EXPECT_EQ(bench().windows().gdi().iconCount(), before);
}

TEST_F(FilterImagesTest, FilterHasANormalAndASelectedPicture) {
    const FilterPictures pictures = images().add(*filter(L"House"));
    EXPECT_EQ(pictures.normal, 0);
    EXPECT_EQ(pictures.selected, 1);
    EXPECT_EQ(images().add(*filter(L"Top")).selected, 3);
}

TEST_F(FilterImagesTest, ClearEmptiesTheMergedListAlone) {
    images().filterImageIndex(nullptr, 0);
    images().clear();
    EXPECT_EQ(images().merged().GetImageCount(), 0);
    EXPECT_EQ(images().builtInImages().GetImageCount(), 5);
    EXPECT_EQ(images().filterImageIndex(nullptr, 0), 0);
}

}  // namespace
