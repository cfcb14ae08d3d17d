#include "workbench/drawing/records/layout.h"

namespace workbench::drawing {

const std::vector<Property<Layout>>& Layout::properties() {
    static const std::vector<Property<Layout>> kProperties{
        property<Layout, &Layout::name>("name"),
        property<Layout, &Layout::tabOrder>("tabOrder").within(1, 255),
        property<Layout, &Layout::paperWidth>("paperWidth").within(1.0, 1.0e6),
        property<Layout, &Layout::paperHeight>("paperHeight").within(1.0, 1.0e6),
        property<Layout, &Layout::currentViewport>("currentViewport").within(1, 32767),
    };
    return kProperties;
}

}  // namespace workbench::drawing
