#include "workbench/windows/image_list.h"

#include "workbench/windows/picture_pixels.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace workbench {

const SourcedPicture* ImageList::at(int index) const {
    return index >= 0 && index < count() ? &m_pictures[static_cast<std::size_t>(index)] : nullptr;
}

int ImageList::addStrip(const SourcedPicture& strip, COLORREF mask) {
    const int first = count();
    const int added = static_cast<int>(strip.picture.width) / m_size.cx;
    if (static_cast<int>(strip.picture.height) != m_size.cy || added == 0)
        return -1;
    const PngPicture masked = withoutColour(strip.picture, mask);
    for (int place = 0; place < added; ++place) {
        m_pictures.push_back({columnsOf(masked, place * m_size.cx, m_size.cx),
                              strip.source + ":" + std::to_string(place)});
    }
    return first;
}

void ImageList::resize(int count) {
    m_pictures.resize(static_cast<std::size_t>(std::max(0, count)), {emptyPicture(m_size), {}});
}

bool ImageList::replace(int index, SourcedPicture picture) {
    if (at(index) == nullptr)
        return false;
    const CSize old{static_cast<int>(picture.picture.width),
                    static_cast<int>(picture.picture.height)};
    if (old != m_size)
        picture.picture = scaled(picture.picture, m_size);
    m_pictures[static_cast<std::size_t>(index)] = std::move(picture);
    return true;
}

}  // namespace workbench
