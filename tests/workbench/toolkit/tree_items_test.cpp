#include "workbench/toolkit/tree_items.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

class TreeItemsTest : public testing::Test {
protected:
    HTREEITEM add(const wchar_t* text, HTREEITEM parent = nullptr, HTREEITEM behind = nullptr) {
        TreeItem item;
        item.text = text;
        item.parent = parent;
        return items.insert(std::move(item), behind);
    }
    std::wstring shown() const {
        std::wstring texts;
        for (const HTREEITEM item : items.rows())
            texts += items.find(item)->text + L" ";
        return texts;
    }

    TreeItems items;
};

TEST_F(TreeItemsTest, ItemsStandInTheOrderInWhichTheyWerePut) {
    const HTREEITEM a = add(L"a");
    add(L"c");
    add(L"b", nullptr, a);
    EXPECT_EQ(shown(), L"a b c ");
}

TEST_F(TreeItemsTest, NoItemGoesWhereNoneCanStand) {
    const HTREEITEM a = add(L"a");
    const HTREEITEM below = add(L"below", a);
    EXPECT_EQ(add(L"x", nullptr, below), nullptr);
    items.remove(a);
    EXPECT_EQ(add(L"x", a), nullptr);
    EXPECT_EQ(items.count(), 0U);
}

TEST_F(TreeItemsTest, ClosedItemsHideWhatStandsInThem) {
    const HTREEITEM a = add(L"a");
    const HTREEITEM b = add(L"b", a);
    const HTREEITEM c = add(L"c", b);
    EXPECT_EQ(shown(), L"a ");
    items.openAbove(c);
    EXPECT_EQ(shown(), L"a b c ");
    EXPECT_EQ(items.levelOf(c), 2);
    EXPECT_TRUE(items.isWithin(c, a));
    EXPECT_FALSE(items.isWithin(a, c));
}

TEST_F(TreeItemsTest, AnItemThatLosesItsLastChildIsClosed) {
    const HTREEITEM a = add(L"a");
    const HTREEITEM b = add(L"b", a);
    items.openAbove(b);
    EXPECT_TRUE(items.remove(b));
    EXPECT_FALSE(items.remove(b));
    EXPECT_FALSE(items.find(a)->isOpen);
}

TEST_F(TreeItemsTest, ClearingEndsAllAtEachLevel) {
    const HTREEITEM a = add(L"a");
    const HTREEITEM b = add(L"b", a);
    items.clear();
    EXPECT_EQ(items.find(a), nullptr);
    EXPECT_EQ(items.find(b), nullptr);
    EXPECT_EQ(items.count(), 0U);
}

TEST_F(TreeItemsTest, SortingLeavesTheOtherLevelsAlone) {
    const HTREEITEM b = add(L"b");
    add(L"a");
    const HTREEITEM z = add(L"z", b);
    add(L"y", b);
    items.openAbove(z);
    const auto byText = [](const TreeItem& left, const TreeItem& right) {
        return left.text < right.text;
    };
    EXPECT_TRUE(items.sortChildren(b, byText));
    EXPECT_EQ(shown(), L"b y z a ");
    EXPECT_TRUE(items.sortChildren(nullptr, byText));
    EXPECT_EQ(shown(), L"a b y z ");
    items.remove(b);
    EXPECT_FALSE(items.sortChildren(b, byText));
}

}  // namespace
}  // namespace workbench
