#pragma once

#include "workbench/drawing/database/property.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// A sheet of paper. Its viewports name it; number 1 among them is the sheet itself.
struct Layout {
    static constexpr RecordKind kKind = RecordKind::Layout;
    static const std::vector<Property<Layout>>& properties();

    std::string name;
    int tabOrder = 1;           // from 1, left to right
    double paperWidth = 420.0;  // millimetres
    double paperHeight = 297.0;
    int currentViewport = 1;  // number of the viewport in which the user works

    friend bool operator==(const Layout&, const Layout&) = default;
};

}  // namespace workbench::drawing
