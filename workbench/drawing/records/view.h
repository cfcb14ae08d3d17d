#pragma once

#include "workbench/drawing/database/property.h"
#include "workbench/drawing/records/view_parameters.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// A view that was given a name.
struct View {
    static constexpr RecordKind kKind = RecordKind::View;
    static const std::vector<Property<View>>& properties();

    std::string name;
    std::string category;
    ViewParameters view;
    Ref<RecordKind::VisualStyle> visualStyle;  // null: the viewport keeps its own
    Ref<RecordKind::Background> background;    // null: likewise

    friend bool operator==(const View&, const View&) = default;
};

}  // namespace workbench::drawing
