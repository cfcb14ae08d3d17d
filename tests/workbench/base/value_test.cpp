#include "workbench/base/value.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

TEST(Value, NumbersAreEqualWhetherWholeOrReal) {
    EXPECT_EQ(Value(2), Value(2.0));
    EXPECT_FALSE(Value(2) == Value(2.5));
    EXPECT_FALSE(Value(1) == Value(true));
}

TEST(Value, TablesAreEqualWhateverTheOrderOfTheirMembers) {
    const Value one = Value::Table{{"a", 1}, {"b", Value::List{1, "x"}}};
    const Value other = Value::Table{{"b", Value::List{1, "x"}}, {"a", 1}};
    EXPECT_EQ(one, other);
    EXPECT_FALSE(one == Value(Value::Table{{"a", 1}}));
}

TEST(Value, RealWithoutFractionIsAWholeNumber) {
    EXPECT_EQ(Value(3.0).asInteger(), 3);
    EXPECT_THROW(Value(3.5).asInteger(), ValueError);
    EXPECT_EQ(Value(3).asReal(), 3.0);
}

TEST(Value, WrongTypeIsToldInWords) {
    try {
        Value("yes").asBool();
        FAIL();
    } catch (const ValueError& error) {
        EXPECT_STREQ(error.what(), "expected true or false, got \"yes\"");
    }
}

TEST(Value, MemberOfWhatIsNoTableIsNone) {
    EXPECT_EQ(Value(3).member("x"), nullptr);
    const Value table = Value::Table{{"x", 4}};
    ASSERT_NE(table.member("x"), nullptr);
    EXPECT_EQ(*table.member("x"), Value(4));
    EXPECT_EQ(table.member("X"), nullptr);
}

}  // namespace
}  // namespace workbench
