#include "layer/filter_refresh.h"

#include "tests/layer/filter_combo_fixture.h"

namespace {

/// Test fixture: the filter of viewport overrides is in force.
class FilterRefreshTest : public FilterComboTest {
protected:
    void SetUp() override {
        FilterComboTest::SetUp();
        setDb("filters.current", "Viewport Overrides");
        takeJournal();
    }
};

TEST_F(FilterComboTest, RefreshWithoutAComboDoesNothing) {
    takeJournal();
    refreshFilterCombos();  // that of the test's own copy of the module, which has no control
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(FilterComboTest, RefreshTakesItsStepsInThisOrder) {
    takeJournal();
    tellCommandEnded(L"LAYER");
    const Calls made = takeCallLines(
        {"VxLyLayerFilterManager::getFilters", "vxedSetUseCurrentFilterFlag", "vxedGetVar",
         "CImageList::SetImageCount", "CQrUiComboCtrl::ResetContent", "CImageList::ExtractIcon",
         "BitmapFromIconGdiPlus", "CQrUiComboCtrl::SetCurSel"});
    const Calls oneCombo{"CImageList::SetImageCount(1)",   "CImageList::ExtractIcon(0)",
                         "CImageList::SetImageCount(2)",   "CImageList::ExtractIcon(0)",
                         "CQrUiComboCtrl::ResetContent()", "CImageList::SetImageCount(3)",
                         "CImageList::ExtractIcon(0)",     "CImageList::SetImageCount(4)",
                         "CImageList::ExtractIcon(0)",     "CImageList::ExtractIcon(2)",
                         "BitmapFromIconGdiPlus(object)",  "CQrUiComboCtrl::SetCurSel(0)"};
    Calls expected{"VxLyLayerFilterManager::getFilters()", "CImageList::SetImageCount(0)",
                   "vxedSetUseCurrentFilterFlag(1)", "vxedGetVar(\"VPLAYEROVERRIDES\")"};
    expected.insert(expected.end(), oneCombo.begin(), oneCombo.end());
    ASSERT_GE(made.size(), expected.size());
    EXPECT_EQ(Calls(made.begin(), made.begin() + static_cast<std::ptrdiff_t>(expected.size())),
              expected);
    EXPECT_EQ(made.size(), expected.size() + oneCombo.size());
}

TEST_F(FilterComboTest, ComboWhoseWindowIsGoneIsSkipped) {
    CWnd::FromHandle(second())->DestroyWindow();
    takeJournal();
    tellCommandEnded(L"LAYER");
    EXPECT_EQ(takeCount("CQrUiComboCtrl::ResetContent"), 1U);
}

TEST_F(FilterComboTest, FailedReadLeavesTheEntriesAsTheyWere) {
    fail("VxLyLayerFilterManager::getFilters", {}, 1);
    takeJournal();
    tellCommandEnded(L"LAYER");
    EXPECT_EQ(shown(), rootName());
    EXPECT_EQ(takeCallLines({"vxedSetUseCurrentFilterFlag", "vxedGetVar"}),
              Calls{"vxedSetUseCurrentFilterFlag(1)"});
}

TEST_F(FilterRefreshTest, WithoutOverridesTheRootIsShown) {
    tellCommandEnded(L"LAYER");
    EXPECT_EQ(shown(), rootName());
}

TEST_F(FilterRefreshTest, WithOverridesTheirFilterIsShown) {
    fail("vxedGetVar", {}, 1);  // unreadable isn't 0
    tellCommandEnded(L"LAYER");
    EXPECT_EQ(shown(), L"Viewport Overrides");
    EXPECT_EQ(shown(second()), L"Viewport Overrides");
}

TEST_F(FilterComboTest, OtherFiltersAreShownWithoutOverrides) {
    for (const char* name : {"House", "Top", "All Used Layers"}) {
        setDb("filters.current", name);
        tellCommandEnded(L"LAYER");
        EXPECT_EQ(shown(), workbench::toWide(name));
    }
}

}  // namespace
