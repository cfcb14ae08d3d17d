#pragma once

#include "workbench/resources/png_picture.h"

#include <hostapi/types.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace workbench {

/// The pictures behind `HBITMAP` handles. A picture lives from `add` to `release`, so what is left
/// at the end was forgotten by somebody.
class PictureTable {
public:
    /// Adds the bytes of a PNG file. `source` is the resource key or the file name; `fine` is the same
    /// picture with twice the pixels each way, for finer screens, empty for none.
    HBITMAP add(std::string source, std::vector<std::uint8_t> png,
                std::vector<std::uint8_t> fine = {});
    /// Adds a picture that is decoded already.
    HBITMAP addDecoded(std::string source, PngPicture pixels);
    /// Gives a picture back; null and stale handles are ignored.
    void release(HBITMAP picture);
    /// The resource key or file name of a picture; empty for null and stale handles.
    const std::string& source(HBITMAP picture) const;
    /// The decoded pixels. Throws `InputError` for a stale handle or bytes that are no picture.
    PngPicture pixels(HBITMAP picture) const;
    /// Those of its fine form. Throws `InputError` for a picture without one, too.
    PngPicture finePixels(HBITMAP picture) const;
    /// The number of pictures that have not been given back.
    std::size_t liveCount() const { return m_pictures.size(); }

private:
    struct Picture {
        std::string source;
        std::vector<std::uint8_t> png;     // empty: `pixels` are all there is
        std::vector<std::uint8_t> fine;    // empty: none
        std::optional<PngPicture> pixels;  // nothing: not decoded
    };
    HBITMAP keep(Picture picture);
    const Picture& present(HBITMAP picture) const;

    std::uintptr_t m_lastNumber = 0;  // handles are numbers, never given out again
    std::unordered_map<std::uintptr_t, Picture> m_pictures;
};

}  // namespace workbench
