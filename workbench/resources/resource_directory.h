#pragma once

#include <cstdint>

/// One text of a resource module.
struct ResourceString {
    std::uint32_t id;  ///< the number that the text is asked for by
    const char* text;  ///< UTF-8, ends with a zero byte; never null
};

/// One picture of a resource module in one size.
struct ResourcePicture {
    const char* key;     ///< "RCDATA_..." for an image, "#" and a number for an icon or bitmap
    std::uint32_t size;  ///< height in pixels; icons are square, a strip is wider than high
    const unsigned char* png;  ///< the bytes of a PNG file
    std::uint32_t length;      ///< number of bytes at `png`
};

/// Everything that a resource module holds. It lies in the module, so it is valid until the module
/// is closed. The layout is plain C, so that any compiler's module fits.
struct ResourceDirectory {
    const ResourceString* strings;  ///< ascending by id, each once; may be null if none
    std::uint32_t stringCount;
    const ResourcePicture* pictures;  ///< ascending by key (byte order), then size; may be null
    std::uint32_t pictureCount;
};

/// The one symbol that a resource module exports, an object of type `ResourceDirectory`.
inline constexpr const char* kResourceDirectorySymbol = "vxResourceDirectory";
