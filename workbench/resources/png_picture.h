#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace workbench {

/// A decoded picture.
struct PngPicture {
    std::uint32_t width = 0;         ///< pixels
    std::uint32_t height = 0;        ///< pixels
    std::vector<std::uint8_t> rgba;  ///< four bytes a pixel, rows from top to bottom, no padding;
                                     ///< alpha is not multiplied into the colours
};

/// Decodes the bytes of a PNG file. `place` names the picture in errors.
/// Throws `InputError` for anything that is not a whole PNG of at most 4096 by 4096 pixels.
PngPicture decodePng(const unsigned char* data, std::size_t length, const std::string& place);

/// Reads and decodes a PNG file. Throws `InputError` as `decodePng`, and for unreadable files.
PngPicture readPngFile(const std::filesystem::path& file);

}  // namespace workbench
