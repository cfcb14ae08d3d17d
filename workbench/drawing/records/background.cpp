#include "workbench/drawing/records/background.h"

namespace workbench::drawing {

const std::vector<Property<Background>>& Background::properties() {
    static const std::vector<Property<Background>> kProperties{
        property<Background, &Background::name>("name"),
        property<Background, &Background::type>("type").within(0, 255),
        property<Background, &Background::top>("top"),
        property<Background, &Background::middle>("middle"),
        property<Background, &Background::bottom>("bottom"),
        property<Background, &Background::image>("image"),
    };
    return kProperties;
}

}  // namespace workbench::drawing
