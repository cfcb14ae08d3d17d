#pragma once

#include "workbench/base/value.h"

#include <cstdint>
#include <string>

namespace workbench::drawing {

/// How a colour is told.
enum class ColourMethod { ByLayer, ByBlock, ByEntity, ByIndex, TrueColour };

/// A colour of an object or of an edge.
struct Colour {
    ColourMethod method = ColourMethod::ByLayer;
    int index = 7;         // 1 to 255, for ByIndex
    std::uint8_t red = 0;  // for TrueColour
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::string book;        // name of the colour book, empty if the colour is from none
    std::string bookColour;  // name of the colour in the book

    static Colour byIndex(int index);
    static Colour trueColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    static Colour byLayer() { return {}; }
    static Colour byBlock();
    static Colour byEntity();

    bool isFromBook() const { return !book.empty(); }

    friend bool operator==(const Colour&, const Colour&) = default;
};

/// The colour as files and scripts hold it: a whole number from 1 to 255, "ByLayer", "ByBlock",
/// "ByEntity", "#rrggbb", or "#rrggbb BOOK$NAME" for a colour of a book.
Value colourValue(const Colour& colour);

/// Reads the same forms, the words without regard to case; throws `ValueError` for any other.
Colour parseColour(const Value& value);

/// What a colour index looks like: 1 to 9 are the fixed basic colours, 10 to 249 a wheel of hues,
/// 250 to 255 greys. The answer is a true colour.
Colour displayColour(int index);

}  // namespace workbench::drawing
