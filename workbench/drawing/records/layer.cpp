#include "workbench/drawing/records/layer.h"

namespace workbench::drawing {

const std::vector<Property<Layer>>& Layer::properties() {
    static const std::vector<Property<Layer>> kProperties{
        property<Layer, &Layer::name>("name"),
        property<Layer, &Layer::description>("description"),
        property<Layer, &Layer::colour>("colour"),
        property<Layer, &Layer::on>("on"),
        property<Layer, &Layer::frozen>("frozen"),
        property<Layer, &Layer::locked>("locked"),
        property<Layer, &Layer::plottable>("plottable"),
        property<Layer, &Layer::frozenInNewViewports>("frozenInNewViewports"),
        property<Layer, &Layer::reconciled>("reconciled"),
        property<Layer, &Layer::linetype>("linetype"),
        property<Layer, &Layer::lineweight>("lineweight").within(-3, 211),
        property<Layer, &Layer::transparency>("transparency").within(0, 90),
    };
    return kProperties;
}

}  // namespace workbench::drawing
