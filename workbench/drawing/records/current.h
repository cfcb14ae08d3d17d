#pragma once

#include "workbench/drawing/database/property.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// What the user works with at the moment.
struct Current {
    static constexpr RecordKind kKind = RecordKind::Current;
    static const std::vector<Property<Current>>& properties();

    bool tileMode = true;            // model space in tiles; false: a layout
    Ref<RecordKind::Layout> layout;  // the layout on show, or the one to come back to
    int modelViewport = 2;           // number of the tile in which the user works
    Ref<RecordKind::Layer> layer;    // new objects go there
    Ref<RecordKind::TextStyle> textStyle;
    std::string layerState;  // the state restored last; empty for none

    friend bool operator==(const Current&, const Current&) = default;
};

}  // namespace workbench::drawing
