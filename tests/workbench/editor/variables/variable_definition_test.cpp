#include "workbench/editor/variables/variable_definition.h"

#include "workbench/base/text.h"
#include "workbench/editor/system_variables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

namespace workbench {

TEST(VariableDefinitionTest, EachNameStandsOnce) {
    std::set<std::wstring> names;
    for (const VariableDefinition& variable : variableTable())
        EXPECT_TRUE(names.insert(toUpper(variable.name)).second) << toUtf8(variable.name);
}

TEST(VariableDefinitionTest, EachInitialValueIsOfItsTypeAndInItsRange) {
    for (const VariableDefinition& variable : variableTable()) {
        if (variable.get != nullptr)
            continue;
        EXPECT_EQ(fitToType(variable.type, variable.initial), variable.initial)
            << toUtf8(variable.name);
        EXPECT_TRUE(isInRange(variable, variable.initial)) << toUtf8(variable.name);
    }
}

TEST(VariableDefinitionTest, WhatIsNotKeptByTheEditorCanBeRead) {
    for (const VariableDefinition& variable : variableTable()) {
        const bool isElsewhere = variable.home == VariableHome::Record ||
                                 variable.home == VariableHome::Viewport ||
                                 variable.home == VariableHome::Computed;
        EXPECT_EQ(variable.get != nullptr, isElsewhere) << toUtf8(variable.name);
    }
}

TEST(VariableDefinitionTest, NumbersAreFittedToTheTypeWithoutTheirFraction) {
    EXPECT_EQ(fitToType(VariableType::Short, 2.9), Value(2));
    EXPECT_EQ(fitToType(VariableType::Short, -2.9), Value(-2));
    EXPECT_EQ(fitToType(VariableType::Short, true), Value(1));
    EXPECT_EQ(fitToType(VariableType::Long, 40000), Value(40000));
    EXPECT_EQ(fitToType(VariableType::Real, 3), Value(3.0));
    EXPECT_EQ(fitToType(VariableType::String, "x"), Value("x"));
}

TEST(VariableDefinitionTest, WhatTheTypeCannotHoldIsNothing) {
    EXPECT_EQ(fitToType(VariableType::Short, 32768), std::nullopt);
    EXPECT_EQ(fitToType(VariableType::Short, -32769), std::nullopt);
    EXPECT_EQ(fitToType(VariableType::Long, 2147483648.0), std::nullopt);
    EXPECT_EQ(fitToType(VariableType::Short, std::nan("")), std::nullopt);
    EXPECT_EQ(fitToType(VariableType::Real, std::numeric_limits<double>::infinity()), std::nullopt);
    EXPECT_EQ(fitToType(VariableType::Real, "3"), std::nullopt);
    EXPECT_EQ(fitToType(VariableType::String, 3), std::nullopt);
    EXPECT_EQ(fitToType(VariableType::Short, Value()), std::nullopt);
}

TEST(VariableDefinitionTest, BothEndsOfARangeBelongToIt) {
    const VariableDefinition& fade = *findVariable(L"LAYLOCKFADECTL");
    EXPECT_TRUE(isInRange(fade, 90));
    EXPECT_TRUE(isInRange(fade, -90));
    EXPECT_FALSE(isInRange(fade, 91));
    EXPECT_FALSE(isInRange(fade, -91));
}

}  // namespace workbench
