#include "workbench/drawing/database/colour.h"

#include "workbench/base/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdio>

namespace workbench::drawing {

namespace {

constexpr std::size_t kHashLength = 7;  // "#rrggbb"

std::string hashText(const Colour& colour) {
    char buffer[kHashLength + 1];
    std::snprintf(buffer, sizeof buffer, "#%02x%02x%02x", static_cast<unsigned>(colour.red),
                  static_cast<unsigned>(colour.green), static_cast<unsigned>(colour.blue));
    return buffer;
}

bool parseHash(const std::string& text, Colour& colour) {
    if (text.size() < kHashLength || text[0] != '#') {
        return false;
    }
    unsigned long rgb = 0;
    const char* begin = text.data() + 1;
    const char* end = text.data() + kHashLength;
    const auto parsed = std::from_chars(begin, end, rgb, 16);
    if (parsed.ec != std::errc() || parsed.ptr != end) {
        return false;
    }
    colour = Colour::trueColour(static_cast<std::uint8_t>(rgb >> 16U & 0xffU),
                                static_cast<std::uint8_t>(rgb >> 8U & 0xffU),
                                static_cast<std::uint8_t>(rgb & 0xffU));
    return true;
}

bool parseBook(const std::string& text, Colour& colour) {
    if (text.size() == kHashLength) {
        return true;
    }
    const std::size_t dollar = text.find('$');
    if (text[kHashLength] != ' ' || dollar == std::string::npos) {
        return false;
    }
    colour.book = text.substr(kHashLength + 1, dollar - kHashLength - 1);
    colour.bookColour = text.substr(dollar + 1);
    return !colour.book.empty() && !colour.bookColour.empty();
}

std::uint8_t channel(double share) {
    return static_cast<std::uint8_t>(std::lround(share * 255.0));
}

/// A hue in degrees at full saturation, darkened to the share `value`.
Colour hueColour(double hue, double saturation, double value) {
    const auto part = [&](double offset) {
        const double k = std::fmod(offset + hue / 60.0, 6.0);
        const double dip = std::fmax(0.0, std::fmin(std::fmin(k, 4.0 - k), 1.0));
        return channel(value - value * saturation * dip);
    };
    return Colour::trueColour(part(5.0), part(3.0), part(1.0));
}

}  // namespace

Colour Colour::byIndex(int index) {
    Colour colour;
    colour.method = ColourMethod::ByIndex;
    colour.index = index;
    return colour;
}

Colour Colour::trueColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    Colour colour;
    colour.method = ColourMethod::TrueColour;
    colour.red = red;
    colour.green = green;
    colour.blue = blue;
    return colour;
}

Colour Colour::byBlock() {
    Colour colour;
    colour.method = ColourMethod::ByBlock;
    return colour;
}

Colour Colour::byEntity() {
    Colour colour;
    colour.method = ColourMethod::ByEntity;
    return colour;
}

Value colourValue(const Colour& colour) {
    switch (colour.method) {
    case ColourMethod::ByLayer:
        return "ByLayer";
    case ColourMethod::ByBlock:
        return "ByBlock";
    case ColourMethod::ByEntity:
        return "ByEntity";
    case ColourMethod::ByIndex:
        return colour.index;
    case ColourMethod::TrueColour:
        break;
    }
    const std::string text = hashText(colour);
    return colour.isFromBook() ? text + " " + colour.book + "$" + colour.bookColour : text;
}

Colour parseColour(const Value& value) {
    if (value.isNumber()) {
        const std::int64_t index = value.asInteger();
        if (index < 1 || index > 255) {
            throw ValueError("expected a colour index from 1 to 255, got " + value.describe());
        }
        return Colour::byIndex(static_cast<int>(index));
    }
    const std::string& text = value.asString();
    if (equalNoCase(text, "ByLayer")) {
        return Colour::byLayer();
    }
    if (equalNoCase(text, "ByBlock")) {
        return Colour::byBlock();
    }
    if (equalNoCase(text, "ByEntity")) {
        return Colour::byEntity();
    }
    Colour colour;
    if (!parseHash(text, colour) || !parseBook(text, colour)) {
        throw ValueError(
            "expected a colour (1 to 255, ByLayer, ByBlock, ByEntity, #rrggbb or "
            "\"#rrggbb BOOK$NAME\"), got " +
            value.describe());
    }
    return colour;
}

Colour displayColour(int index) {
    static const std::array<Colour, 9> kBasic{
        Colour::trueColour(255, 0, 0),     Colour::trueColour(255, 255, 0),
        Colour::trueColour(0, 255, 0),     Colour::trueColour(0, 255, 255),
        Colour::trueColour(0, 0, 255),     Colour::trueColour(255, 0, 255),
        Colour::trueColour(255, 255, 255), Colour::trueColour(128, 128, 128),
        Colour::trueColour(192, 192, 192),
    };
    if (index >= 1 && index <= 9) {
        return kBasic[static_cast<std::size_t>(index - 1)];
    }
    if (index >= 250 && index <= 255) {
        const double share = 0.2 + 0.16 * (index - 250);
        return Colour::trueColour(channel(share), channel(share), channel(share));
    }
    if (index < 10 || index > 249) {
        return kBasic[6];
    }
    // Ten indexes a hue: five steps of darkness, each in a full and a pale form.
    const double hue = (index - 10) / 10 * 15.0;
    const int shade = index % 10;
    const double value = 1.0 - 0.17 * (shade / 2);
    return hueColour(hue, shade % 2 == 0 ? 1.0 : 0.5, value);
}

}  // namespace workbench::drawing
