#include "workbench/base/number_text.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

TEST(NumberText, FixedHasItsPlaces) {
    EXPECT_EQ(fixedText(50.0, 4), L"50.0000");
    EXPECT_EQ(fixedText(2.5, 0), L"2");
    EXPECT_EQ(fixedText(-1.25, 1), L"-1.2");
    EXPECT_EQ(fixedText(1.0e20, 0), L"100000000000000000000");
}

TEST(NumberText, WhatRoundsToZeroHasNoSign) {
    EXPECT_EQ(fixedText(-0.004, 2), L"0.00");
    EXPECT_EQ(fixedText(-0.0, 0), L"0");
}

TEST(NumberText, ScientificHasAPowerOfTen) {
    EXPECT_EQ(scientificText(50.0, 4), L"5.0000E+01");
    EXPECT_EQ(scientificText(0.0, 1), L"0.0E+00");
}

}  // namespace
}  // namespace workbench
