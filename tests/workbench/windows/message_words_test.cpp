#include "workbench/windows/message_words.h"

#include <gtest/gtest.h>

namespace workbench {

namespace {

LPARAM address(const void* object) {
    return reinterpret_cast<LPARAM>(object);
}

class TextMessageTest : public testing::TestWithParam<UINT> {};
class ObjectMessageTest : public testing::TestWithParam<UINT> {};

}  // namespace

TEST_P(TextMessageTest, TheTextBehindThePointerIsShown) {
    EXPECT_EQ(shownLParam(GetParam(), address(L"TILEMODE")), Value("TILEMODE"));
    EXPECT_TRUE(shownLParam(GetParam(), 0).isNil());
}

INSTANTIATE_TEST_SUITE_P(Broadcasts, TextMessageTest,
                         testing::Values(1725U, 1727U, 1728U, 1729U, 1730U, 1731U));

TEST_P(ObjectMessageTest, APointerShowsOnlyThatThereIsOne) {
    const int object = 0;
    EXPECT_EQ(shownLParam(GetParam(), address(&object)), Value("object"));
    EXPECT_TRUE(shownLParam(GetParam(), 0).isNil());
}

INSTANTIATE_TEST_SUITE_P(Documents, ObjectMessageTest, testing::Values(1724U, 1726U, 1737U));
INSTANTIATE_TEST_SUITE_P(Records, ObjectMessageTest,
                         testing::Values(WM_CREATE, WM_WINDOWPOSCHANGED, 1565U, 1605U));

TEST(MessageWordsTest, AnotherArgumentIsANumber) {
    EXPECT_EQ(shownLParam(1534, -7), Value(-7));
    EXPECT_EQ(shownLParam(1736, 0), Value(0));
}

}  // namespace workbench
