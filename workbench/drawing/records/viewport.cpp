#include "workbench/drawing/records/viewport.h"

#include <algorithm>

namespace workbench::drawing {

const std::vector<Property<Viewport>>& Viewport::properties() {
    using Port = Viewport;
    static const std::vector<Property<Port>> kProperties = [] {
        std::vector<Property<Port>> all{
            property<Port, &Port::number>("number").within(1, 32767),
            property<Port, &Port::layout>("layout"),
            property<Port, &Port::on>("on"),
            property<Port, &Port::locked>("locked"),
            property<Port, &Port::lowerLeft>("lowerLeft"),
            property<Port, &Port::upperRight>("upperRight"),
        };
        appendViewProperties<Port, &Port::view>(all);
        const std::vector<Property<Port>> more{
            property<Port, &Port::appliedView>("appliedView"),
            property<Port, &Port::visualStyle>("visualStyle"),
            property<Port, &Port::background>("background"),
            property<Port, &Port::sun>("sun"),
            property<Port, &Port::brightness>("brightness").within(-10.0, 10.0),
            property<Port, &Port::contrast>("contrast").within(-10.0, 10.0),
            property<Port, &Port::tone, &ToneOperator::brightness>("toneBrightness")
                .within(0.0, 200.0),
            property<Port, &Port::tone, &ToneOperator::contrast>("toneContrast").within(0.0, 100.0),
            property<Port, &Port::tone, &ToneOperator::midTones>("toneMidTones").within(0.0, 20.0),
            property<Port, &Port::frozenLayers>("frozenLayers"),
            property<Port, &Port::layerOverrides>("layerOverrides"),
        };
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }();
    return kProperties;
}

void freezeInViewport(Viewport& viewport, ObjectId layer, bool frozen) {
    if (!frozen)
        std::erase_if(viewport.frozenLayers, [layer](const auto& one) { return one.id == layer; });
    else if (!isFrozenInViewport(viewport, layer))
        viewport.frozenLayers.emplace_back(layer);
}

bool isFrozenInViewport(const Viewport& viewport, ObjectId layer) {
    return std::any_of(viewport.frozenLayers.begin(), viewport.frozenLayers.end(),
                       [layer](const auto& one) { return one.id == layer; });
}

}  // namespace workbench::drawing
