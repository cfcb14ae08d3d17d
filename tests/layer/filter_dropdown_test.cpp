#include "tests/layer/filter_combo_fixture.h"

#include <hostapi/window/tree_ctrl.h>
#include <hostapi/zorq/layers.h>

namespace {

/// Test fixture: the dropdown is open.
class FilterDropdownTest : public FilterComboTest {
protected:
    void SetUp() override {
        FilterComboTest::SetUp();
        clickCombo();
        ASSERT_TRUE(isOpen());
    }
    CWnd& dropdown() { return *CWnd::FromHandle(tree())->GetParent(); }
    int rowHeight() { return dynamic_cast<CTreeCtrl*>(CWnd::FromHandle(tree()))->GetItemHeight(); }
};

TEST_F(FilterDropdownTest, IsAHiddenPopupOfTheMainFrameAtFirst) {
    takeJournal();
    clickCombo();
    clickCombo();
    const Calls made =
        takeCallLines({"CWnd::CreateEx", "CTreeCtrl::Create", "CButton::Create",
                       "VxLyLayerFilterManager::getFilters", "vxedGetInvertLayerFilterFlag"});
    ASSERT_EQ(made.size(), 5U);
    EXPECT_EQ(made[0].substr(0, 24), "CWnd::CreateEx(0, \"Stati");
    EXPECT_EQ(made[1].substr(0, 28), "CTreeCtrl::Create(1342181439");
    EXPECT_EQ(made[2].substr(0, 16), "CButton::Create(");
    EXPECT_EQ(made[3], "VxLyLayerFilterManager::getFilters()");
    EXPECT_EQ(made[4], "vxedGetInvertLayerFilterFlag()");
}

TEST_F(FilterDropdownTest, TreeWithFewRowsHasTwoRowsMoreThanItNeeds) {
    const int rowCount = static_cast<int>(rows().size());
    EXPECT_EQ(CWnd::FromHandle(tree())->GetWindowRect().Height(), rowHeight() * (rowCount + 2));
}

TEST_F(FilterDropdownTest, CheckStandsBelowTheTreeAsHighAsTheCombo) {
    const CRect above = CWnd::FromHandle(tree())->GetWindowRect();
    const CRect below = CWnd::FromHandle(check())->GetWindowRect();
    EXPECT_EQ(below.top, above.bottom);
    EXPECT_EQ(below.Width(), above.Width());
    EXPECT_EQ(below.Height(), CWnd::FromHandle(window())->GetWindowRect().Height());
    EXPECT_EQ(dropdown().GetWindowRect().Height(), above.Height() + below.Height());
}

TEST_F(FilterDropdownTest, TreeIsNoHigherThan250Pixels) {
    clickCombo();
    for (int i = 0; i < 20; ++i)
        setDb("filters.G" + std::to_string(i), workbench::Value::Table{{"kind", "group"}});
    clickCombo();
    EXPECT_EQ(CWnd::FromHandle(tree())->GetWindowRect().Height(), 250);
}

TEST_F(FilterDropdownTest, KeyboardIsInTheTree) {
    EXPECT_TRUE(hasFocus(tree()));
}

TEST_F(FilterDropdownTest, ClickOnTheCheckKeepsItOpen) {
    workbench::gestures::clickAt(bench().toolkit(), check(), {5, 5});
    settle();
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(hasFocus(check()));
}

TEST_F(FilterDropdownTest, LabelEditorKeepsItOpen) {
    choose(L"House", "Rename");
    EXPECT_TRUE(isOpen());
    editLabel(L"House", "escape");
    EXPECT_TRUE(isOpen());
}

TEST_F(FilterDropdownTest, HidesWhenTheKeyboardLeavesALabelThatIsEdited) {
    choose(L"House", "Rename");
    workbench::gestures::blur(bench().toolkit());
    settle();
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(isStored("House"));
}

TEST_F(FilterDropdownTest, HidesWhenTheKeyboardLeavesIt) {
    for (const bool fromCheck : {false, true}) {
        if (!isOpen())
            clickCombo();
        if (fromCheck)
            workbench::gestures::clickAt(bench().toolkit(), check(), {5, 5});
        bench().windows().setFocus(nullptr);
        settle();
        EXPECT_FALSE(isOpen()) << fromCheck;
    }
}

TEST_F(FilterDropdownTest, HidesWhenItHadTheKeyboardItself) {
    dropdown().SetFocus();
    ASSERT_TRUE(isOpen());
    bench().windows().setFocus(nullptr);
    EXPECT_FALSE(isOpen());
}

TEST_F(FilterDropdownTest, ShowsTheHostsInvertFlag) {
    EXPECT_EQ(bench().windows().send(check(), BM_GETCHECK, 0, 0), 0);
    clickCombo();
    vxedSetInvertLayerFilterFlag(true);
    clickCombo();
    EXPECT_EQ(bench().windows().send(check(), BM_GETCHECK, 0, 0), 1);
    vxedSetInvertLayerFilterFlag(false);
}

}  // namespace
