#include "workbench/drawing/records/current.h"

namespace workbench::drawing {

const std::vector<Property<Current>>& Current::properties() {
    static const std::vector<Property<Current>> kProperties{
        property<Current, &Current::tileMode>("tileMode"),
        property<Current, &Current::layout>("layout"),
        property<Current, &Current::modelViewport>("modelViewport").within(2, 32767),
        property<Current, &Current::layer>("layer"),
        property<Current, &Current::textStyle>("textStyle"),
        property<Current, &Current::layerState>("layerState"),
    };
    return kProperties;
}

}  // namespace workbench::drawing
