#pragma once

#include <hostapi/window/image_list.h>

class VxLyLayerFilter;

/// Places of a filter's two pictures in the merged list.
struct FilterPictures {
    int normal = 0;
    int selected = 0;
};

/// The 16-pixel pictures of filters, merged from whatever lists they come from.
class FilterImages {
public:
    FilterImages();

    /// The merged list. It lives as long as this.
    CImageList& merged() { return m_merged; }
    /// Empties the merged list.
    void clear();
    /// Appends a picture of a list, or for null of the built-in strip. Its index in the merged list.
    int filterImageIndex(HIMAGELIST source, int index);
    /// Appends both pictures of a filter.
    FilterPictures add(const VxLyLayerFilter& filter);
    /// The strip of pictures that filters have which bring none of their own; made on first need.
    CImageList& builtInImages();

private:
    CImageList m_merged;
    CImageList m_builtIn;  // without a list until it is needed
};
