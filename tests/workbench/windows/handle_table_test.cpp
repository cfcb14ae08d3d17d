#include "workbench/windows/handle_table.h"

#include <gtest/gtest.h>

#include <set>

namespace workbench {

using Numbers = HandleTable<std::uintptr_t, int>;

TEST(HandleTableTest, AHandleFindsItsObjectUntilItIsTaken) {
    Numbers numbers;
    const auto handle = numbers.add(std::make_unique<int>(7));
    ASSERT_NE(numbers.find(handle), nullptr);
    EXPECT_EQ(*numbers.find(handle), 7);
    EXPECT_EQ(*numbers.take(handle), 7);
    EXPECT_EQ(numbers.find(handle), nullptr);
    EXPECT_EQ(numbers.take(handle), nullptr);
    EXPECT_EQ(numbers.count(), 0U);
}

TEST(HandleTableTest, NullAndForeignHandlesFindNothing) {
    Numbers numbers;
    numbers.add(std::make_unique<int>(7));
    EXPECT_EQ(numbers.find(0), nullptr);
    EXPECT_EQ(numbers.find(12345), nullptr);
    EXPECT_EQ(numbers.find(~std::uintptr_t{0}), nullptr);
}

TEST(HandleTableTest, NoHandleIsGivenOutTwice) {
    Numbers numbers;
    std::set<std::uintptr_t> handles;
    for (int i = 0; i < 100; ++i) {
        const auto handle = numbers.add(std::make_unique<int>(i));
        EXPECT_TRUE(handles.insert(handle).second);
        numbers.take(handle);
    }
}

}  // namespace workbench
