#include "workbench/editor/variables/result_buffer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace workbench {

TEST(ResultBufferTest, EachTypeHasItsCodeAndItsPlace) {
    VxResultBuffer buffer;
    EXPECT_TRUE(fillResultBuffer(buffer, VariableType::Short, -5));
    EXPECT_EQ(buffer.type, 5003);
    EXPECT_EQ(buffer.value.shortInt, -5);
    EXPECT_TRUE(fillResultBuffer(buffer, VariableType::Long, 70000));
    EXPECT_EQ(buffer.type, 5010);
    EXPECT_EQ(buffer.value.longInt, 70000);
    EXPECT_TRUE(fillResultBuffer(buffer, VariableType::Real, 2.5));
    EXPECT_EQ(buffer.type, 5001);
    EXPECT_EQ(buffer.value.real, 2.5);
    EXPECT_TRUE(fillResultBuffer(buffer, VariableType::String, "Wände"));
    EXPECT_EQ(buffer.type, 5005);
    EXPECT_EQ(std::wstring(buffer.value.string), L"W\u00E4nde");
    std::free(buffer.value.string);
}

TEST(ResultBufferTest, AShortLeavesTheRestOfTheWordAlone) {
    VxResultBuffer buffer;
    buffer.value.longInt = 0;
    fillResultBuffer(buffer, VariableType::Short, 1);
    EXPECT_EQ(buffer.value.longInt, 1);
}

TEST(ResultBufferTest, NilLeavesTheBufferAlone) {
    VxResultBuffer buffer;
    EXPECT_FALSE(fillResultBuffer(buffer, VariableType::Short, Value()));
    EXPECT_EQ(buffer.type, 0);
}

TEST(ResultBufferTest, ValuesAreReadByTheTypeCode) {
    VxResultBuffer buffer;
    buffer.type = kRtShort;
    buffer.value.shortInt = -7;
    EXPECT_EQ(valueOf(buffer), Value(-7));
    buffer.type = kRtLong;
    buffer.value.longInt = 70000;
    EXPECT_EQ(valueOf(buffer), Value(70000));
    buffer.type = kRtReal;
    buffer.value.real = 0.5;
    EXPECT_EQ(valueOf(buffer), Value(0.5));
    wchar_t text[] = L"Walls";
    buffer.type = kRtString;
    buffer.value.string = text;
    EXPECT_EQ(valueOf(buffer), Value("Walls"));
    buffer.value.string = nullptr;
    EXPECT_TRUE(valueOf(buffer).isNil());
    buffer.type = 1;
    EXPECT_TRUE(valueOf(buffer).isNil());
}

TEST(ResultBufferTest, ShownValuesAreThoseOfTheJournal) {
    EXPECT_EQ(shownValue(Value(3)).toValue(), Value(3));
    EXPECT_EQ(shownValue(Value(0.5)).toValue(), Value(0.5));
    const Value text("Walls");
    EXPECT_EQ(shownValue(text).toValue(), text);
    EXPECT_TRUE(shownValue(Value()).toValue().isNil());
}

}  // namespace workbench
