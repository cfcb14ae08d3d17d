#include "workbench/drawing/records/text_style.h"

namespace workbench::drawing {

const std::vector<Property<TextStyle>>& TextStyle::properties() {
    static const std::vector<Property<TextStyle>> kProperties{
        property<TextStyle, &TextStyle::name>("name"),
        property<TextStyle, &TextStyle::font>("font"),
        property<TextStyle, &TextStyle::height>("height").within(0.0, 1.0e20),
        property<TextStyle, &TextStyle::widthFactor>("widthFactor").within(0.01, 100.0),
        property<TextStyle, &TextStyle::oblique>("oblique").within(-1.5, 1.5),
    };
    return kProperties;
}

}  // namespace workbench::drawing
