#include "workbench/drawing/records/layer_filter_expression.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

bool matches(const char* expression, const Layer& layer) {
    return LayerFilterExpression(expression).matches(layer);
}

class LayerFilterExpressionTest : public testing::Test {
protected:
    LayerFilterExpressionTest() {
        m_layer.name = "A-Walls";
        m_layer.locked = true;
        m_layer.colour = Colour::byIndex(3);
    }

    Layer m_layer;
};

TEST_F(LayerFilterExpressionTest, NamesMatchByPatternWhateverTheirCase) {
    EXPECT_TRUE(matches("NAME==\"a-*\"", m_layer));
    EXPECT_TRUE(matches("name == \"B-*,?-wall?\"", m_layer));
    EXPECT_FALSE(matches("NAME==\"A-\"", m_layer));
    EXPECT_TRUE(matches("NAME!=\"B*\"", m_layer));
}

TEST_F(LayerFilterExpressionTest, OtherFieldsCompareTheirTexts) {
    EXPECT_TRUE(matches("LOCKED==\"true\"", m_layer));
    EXPECT_TRUE(matches("COLOR==\"3\"", m_layer));
    EXPECT_TRUE(matches("FROZEN==\"False\"", m_layer));
    EXPECT_FALSE(matches("ON==\"False\"", m_layer));
}

TEST_F(LayerFilterExpressionTest, AndBindsMoreTightlyThanOr) {
    EXPECT_TRUE(matches("ON==\"False\" AND NAME==\"X\" OR LOCKED==\"True\"", m_layer));
    EXPECT_FALSE(matches("ON==\"False\" AND NAME==\"*\"", m_layer));
}

TEST_F(LayerFilterExpressionTest, EmptyTextShowsNothing) {
    EXPECT_FALSE(matches("", m_layer));
    EXPECT_FALSE(matches("  ", m_layer));
}

TEST_F(LayerFilterExpressionTest, WhatIsNoExpressionIsRefused) {
    for (const char* text : {"NAME", "NAME=\"x\"", "SIZE==\"x\"", "NAME==x", "NAME==\"x",
                             "NAME==\"x\" XOR ON==\"True\"", "NAME==\"x\" AND"}) {
        EXPECT_THROW(LayerFilterExpression{text}, ValueError) << text;
    }
}

TEST(MatchesPattern, StarsTakeAnyLettersAlsoNone) {
    EXPECT_TRUE(matchesPattern("*", ""));
    EXPECT_TRUE(matchesPattern("a*b*c", "aXbbYc"));
    EXPECT_TRUE(matchesPattern("*bc", "abbc"));
    EXPECT_FALSE(matchesPattern("a*b", "abc"));
    EXPECT_FALSE(matchesPattern("", "a"));
    EXPECT_FALSE(matchesPattern("?", ""));
}

}  // namespace
}  // namespace workbench::drawing
