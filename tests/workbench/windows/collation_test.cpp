#include "workbench/windows/collation.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(CollationTest, CaseIsIgnored) {
    const Collation order("en_US");
    EXPECT_EQ(order.compareNoCase(L"Walls", L"wALLS"), 0);
    EXPECT_LT(order.compareNoCase(L"apple", L"Banana"), 0);
    EXPECT_GT(order.compareNoCase(L"Cherry", L"banana"), 0);
}

TEST(CollationTest, AccentsAreNotIgnored) {
    const Collation order("en_US");
    EXPECT_NE(order.compareNoCase(L"resume", L"r\u00e9sum\u00e9"), 0);
}

TEST(CollationTest, TheLanguageDecides) {
    const Collation english("en_US");
    const Collation swedish("sv_SE");
    EXPECT_LT(english.compareNoCase(L"\u00e4", L"z"), 0);
    EXPECT_GT(swedish.compareNoCase(L"\u00e4", L"z"), 0);
}

TEST(CollationTest, AnUnknownLanguageStillHasAnOrder) {
    const Collation order("xx_XX");
    EXPECT_LT(order.compareNoCase(L"a", L"b"), 0);
}

}  // namespace workbench
