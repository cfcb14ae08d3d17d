#include "layer/filter_images.h"

#include "core/resources.h"

#include <hostapi/vxly.h>

namespace {

constexpr UINT kPictureFlags = ILC_COLOR24 | ILC_MASK;
constexpr int kGrowth = 32;
constexpr UINT kStripBitmap = 1290;
constexpr COLORREF kMaskColour = 0xFF00FF;
constexpr COLORREF kBackground = 0xFFFFFF;

BOOL createList(CImageList& list) {
    return list.Create(kSmallPixels, kSmallPixels, kPictureFlags, 0, kGrowth);
}

/// An icon of a list that stays its owner's.
HICON extractFromForeign(HIMAGELIST source, int index) {
    CImageList wrapped;
    wrapped.Attach(source);
    const HICON icon = wrapped.ExtractIcon(index);
    wrapped.Detach();
    return icon;
}

}  // namespace

FilterImages::FilterImages() {
    createList(m_merged);
    m_merged.SetBkColor(kBackground);
}

void FilterImages::clear() {
    m_merged.SetImageCount(0);
}

CImageList& FilterImages::builtInImages() {
    if (m_builtIn.m_hImageList == nullptr && createList(m_builtIn)) {
        CBitmap strip;
        if (strip.LoadBitmap(kStripBitmap))
            m_builtIn.Add(&strip, kMaskColour);
    }
    return m_builtIn;
}

// Kept as it is: a picture that was asked for before is appended again, because the list is small and
// made anew at each refresh.
int FilterImages::filterImageIndex(HIMAGELIST source, int index) {
    const int place = m_merged.GetImageCount();
    m_merged.SetImageCount(static_cast<UINT>(place) + 1);
    const HICON icon =
        source == nullptr ? builtInImages().ExtractIcon(index) : extractFromForeign(source, index);
    m_merged.Replace(place, icon);
    DestroyIcon(icon);
    return m_merged.GetImageCount() - 1;
}

FilterPictures FilterImages::add(const VxLyLayerFilter& filter) {
    HIMAGELIST source = nullptr;
    FilterPictures pictures;
    filter.getImages(source, pictures.normal, pictures.selected);
    const int normal = filterImageIndex(source, pictures.normal);
    return {normal, filterImageIndex(source, pictures.selected)};
}
