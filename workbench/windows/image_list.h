#pragma once

#include "workbench/resources/png_picture.h"

#include <hostapi/window/image_list.h>

#include <string>
#include <vector>

namespace workbench {

/// A picture, and where it came from, such as "#1290:2" for the third of a strip; empty if nobody
/// knows.
struct SourcedPicture {
    PngPicture picture;
    std::string source;
};

/// Pictures of one size, by index from 0.
class ImageList {
public:
    explicit ImageList(CSize size) : m_size(size) {}

    CSize size() const { return m_size; }
    int count() const { return static_cast<int>(m_pictures.size()); }
    /// The picture at an index; null outside.
    const SourcedPicture* at(int index) const;
    /// The colour behind the pictures; `CLR_INVALID` for none.
    COLORREF background() const { return m_background; }
    void setBackground(COLORREF colour) { m_background = colour; }

    /// Adds the pictures that stand side by side in a strip, where `mask` is the colour of what is not
    /// drawn. The index of the first one; -1 if the strip isn't as high as the pictures, or too narrow.
    int addStrip(const SourcedPicture& strip, COLORREF mask);
    /// Cuts off at the end or adds empty pictures; below 0 is none.
    void resize(int count);
    /// Puts a picture, scaled to the list's size, in the place of another. False outside.
    bool replace(int index, SourcedPicture picture);

private:
    CSize m_size;
    COLORREF m_background = CLR_INVALID;
    std::vector<SourcedPicture> m_pictures;
};

}  // namespace workbench
