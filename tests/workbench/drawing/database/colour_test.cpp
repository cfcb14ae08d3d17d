#include "workbench/drawing/database/colour.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(Colour, EveryFormComesBackAsItWasWritten) {
    for (const Value& value :
         {Value(1), Value(255), Value("ByLayer"), Value("ByBlock"), Value("ByEntity"),
          Value("#0a80ff"), Value("#0a80ff Paints$Sky 12")}) {
        EXPECT_EQ(colourValue(parseColour(value)), value) << value.describe();
    }
}

TEST(Colour, BookColourKnowsItsBookAndName) {
    const Colour colour = parseColour("#010203 Paints$Sky 12");
    EXPECT_TRUE(colour.isFromBook());
    EXPECT_EQ(colour.book, "Paints");
    EXPECT_EQ(colour.bookColour, "Sky 12");
    EXPECT_EQ(colour.blue, 3);
}

TEST(Colour, WordsAreReadWhateverTheirCase) {
    EXPECT_EQ(parseColour("BYLAYER"), Colour::byLayer());
}

TEST(Colour, WhatIsNoColourIsRefused) {
    for (const Value& value :
         {Value(0), Value(256), Value("#12345"), Value("#12345g"), Value("#123456Book$x"),
          Value("#123456 Book"), Value("red"), Value(true), Value(1.5)}) {
        EXPECT_THROW(parseColour(value), ValueError) << value.describe();
    }
}

TEST(Colour, BasicIndexesAndGreysLookAsKnown) {
    EXPECT_EQ(displayColour(1), Colour::trueColour(255, 0, 0));
    EXPECT_EQ(displayColour(5), Colour::trueColour(0, 0, 255));
    EXPECT_EQ(displayColour(255), Colour::trueColour(255, 255, 255));
    EXPECT_EQ(displayColour(10), Colour::trueColour(255, 0, 0));
}

}  // namespace
}  // namespace workbench::drawing
