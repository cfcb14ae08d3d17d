#include "palette/item_index.h"

#include "tests/support/allocation_counter.h"

#include <gtest/gtest.h>

namespace {

/// Items are only pointers here.
CQrUiToolPanelItem* itemAt(std::uintptr_t address) {
    return reinterpret_cast<CQrUiToolPanelItem*>(address);
}

TEST(ItemIndexTest, KeepsTheItemsOfOneIdInTheOrderOfEntering) {
    VxDaItemIndex index;
    index.add(L"ID_A", itemAt(16));
    index.add(L"ID_B", itemAt(32));
    index.add(L"ID_A", itemAt(48));
    ASSERT_NE(index.find(L"ID_A"), nullptr);
    EXPECT_EQ(*index.find(L"ID_A"), (VxDaToolPanelItems{itemAt(16), itemAt(48)}));
}

TEST(ItemIndexTest, ComparesIdsExactly) {
    VxDaItemIndex index;
    index.add(L"ID_A", itemAt(16));
    EXPECT_EQ(index.find(L"id_a"), nullptr);
    EXPECT_EQ(index.find(L"ID_"), nullptr);
}

TEST(ItemIndexTest, AnIdStaysKnownWhenItsLastItemGoes) {
    VxDaItemIndex index;
    index.add(L"ID_A", itemAt(16));
    index.remove(L"ID_A", itemAt(16));
    index.remove(L"ID_B", itemAt(16));
    ASSERT_NE(index.find(L"ID_A"), nullptr);
    EXPECT_TRUE(index.find(L"ID_A")->empty());
    EXPECT_EQ(index.find(L"ID_B"), nullptr);
}

TEST(ItemIndexTest, ListsStayWhereTheyAreWhileTheTableGrows) {
    VxDaItemIndex index;
    index.add(L"ID_A", itemAt(16));
    const VxDaToolPanelItems* items = index.find(L"ID_A");
    for (int i = 0; i < 1000; ++i)
        index.add(std::to_wstring(i), itemAt(32));
    EXPECT_EQ(index.find(L"ID_A"), items);
}

TEST(ItemIndexTest, ClearForgetsAll) {
    VxDaItemIndex index;
    index.add(L"ID_A", itemAt(16));
    index.clear();
    EXPECT_EQ(index.find(L"ID_A"), nullptr);
}

TEST(ItemIndexTest, LookingUpALiteralTakesNoMemory) {
    VxDaItemIndex index;
    index.add(L"ID_AnItemWithALongName", itemAt(16));
    const std::size_t before = support::allocationCount();
    EXPECT_NE(index.find(L"ID_AnItemWithALongName"), nullptr);
    EXPECT_EQ(support::allocationCount(), before);
}

}  // namespace
