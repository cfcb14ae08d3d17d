#include "workbench/drawing/layer_overrides.h"

#include "workbench/drawing/lookup.h"

#include <algorithm>
#include <optional>

namespace workbench::drawing {

namespace {

const LayerOverride* find(const Viewport& viewport, ObjectId layer) {
    const auto found =
        std::find_if(viewport.layerOverrides.begin(), viewport.layerOverrides.end(),
                     [layer](const LayerOverride& one) { return one.layer.id == layer; });
    return found == viewport.layerOverrides.end() ? nullptr : &*found;
}

template <class Type>
std::optional<Type> difference(const Type& own, const Type& wanted) {
    return own == wanted ? std::nullopt : std::optional(wanted);
}

}  // namespace

bool hasOverride(const Viewport& viewport, ObjectId layer) {
    const LayerOverride* override = find(viewport, layer);
    return override != nullptr && !override->isEmpty();
}

bool activeViewportHasOverrides(const Database& database) {
    const auto* viewport = database.look<Viewport>(activeViewport(database));
    if (viewport == nullptr)
        return false;
    const std::vector<ObjectId> layers = database.ids(RecordKind::Layer);
    return std::any_of(layers.begin(), layers.end(),
                       [viewport](ObjectId layer) { return hasOverride(*viewport, layer); });
}

Layer lookIn(const Viewport& viewport, ObjectId id, Layer layer) {
    const LayerOverride* override = find(viewport, id);
    if (override == nullptr)
        return layer;
    layer.colour = override->colour.value_or(layer.colour);
    layer.linetype = override->linetype.value_or(layer.linetype);
    layer.lineweight = override->lineweight.value_or(layer.lineweight);
    layer.transparency = override->transparency.value_or(layer.transparency);
    return layer;
}

void overrideLook(Viewport& viewport, ObjectId id, const Layer& own, const Layer& wanted) {
    std::erase_if(viewport.layerOverrides,
                  [id](const LayerOverride& one) { return one.layer.id == id; });
    const LayerOverride override{id, difference(own.colour, wanted.colour),
                                 difference(own.linetype, wanted.linetype),
                                 difference(own.lineweight, wanted.lineweight),
                                 difference(own.transparency, wanted.transparency)};
    if (!override.isEmpty())
        viewport.layerOverrides.push_back(override);
}

}  // namespace workbench::drawing
