#include "workbench/windows/picture_pixels.h"

#include <cstddef>
#include <cstdint>

namespace workbench {

namespace {

constexpr std::size_t kBytes = 4;  // of a pixel
constexpr std::size_t kAlpha = 3;  // the place in a pixel

bool isInside(const PngPicture& picture, int x, int y) {
    return x >= 0 && y >= 0 && static_cast<std::uint32_t>(x) < picture.width &&
           static_cast<std::uint32_t>(y) < picture.height;
}

/// Where the bytes of a pixel inside begin.
std::size_t placeOf(const PngPicture& picture, int x, int y) {
    return kBytes * (static_cast<std::size_t>(y) * picture.width + static_cast<std::size_t>(x));
}

COLORREF colourIn(const std::uint8_t* pixel) {
    return static_cast<COLORREF>(pixel[0] | pixel[1] << 8 | pixel[2] << 16);
}

/// A picture of a size in which each pixel is that of another picture at the place that `from` says.
template <class From>
PngPicture madeOf(const PngPicture& picture, CSize size, From from) {
    PngPicture made = emptyPicture(size);
    for (int y = 0; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            const CPoint source = from(x, y);
            if (!isInside(picture, source.x, source.y))
                continue;
            const std::size_t old = placeOf(picture, source.x, source.y);
            for (std::size_t byte = 0; byte < kBytes; ++byte)
                made.rgba[placeOf(made, x, y) + byte] = picture.rgba[old + byte];
        }
    }
    return made;
}

}  // namespace

COLORREF colourAt(const PngPicture& picture, int x, int y) {
    return isInside(picture, x, y) ? colourIn(&picture.rgba[placeOf(picture, x, y)]) : CLR_INVALID;
}

PngPicture withoutColour(PngPicture picture, COLORREF colour) {
    for (std::size_t pixel = 0; pixel < picture.rgba.size(); pixel += kBytes) {
        if (colourIn(&picture.rgba[pixel]) == colour)
            picture.rgba[pixel + kAlpha] = 0;
    }
    return picture;
}

PngPicture emptyPicture(CSize size) {
    PngPicture picture;
    picture.width = static_cast<std::uint32_t>(size.cx);
    picture.height = static_cast<std::uint32_t>(size.cy);
    picture.rgba.resize(kBytes * picture.width * picture.height);
    return picture;
}

PngPicture columnsOf(const PngPicture& picture, int from, int width) {
    const CSize size{width, static_cast<int>(picture.height)};
    return madeOf(picture, size, [from](int x, int y) { return CPoint{from + x, y}; });
}

PngPicture scaled(const PngPicture& picture, CSize size) {
    const int width = static_cast<int>(picture.width);
    const int height = static_cast<int>(picture.height);
    return madeOf(picture, size, [size, width, height](int x, int y) {
        return CPoint{x * width / size.cx, y * height / size.cy};
    });
}

}  // namespace workbench
