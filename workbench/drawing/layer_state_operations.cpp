#include "workbench/drawing/layer_state_operations.h"

#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/layer_state.h"
#include "workbench/drawing/records/viewport.h"

#include <algorithm>
#include <vector>

namespace workbench::drawing {

namespace {

using FrozenLayers = std::vector<Ref<RecordKind::Layer>>;

/// The viewport if it is one of a layout, where single layers can be frozen.
const Viewport* freezingViewport(const Database& database, ObjectId id) {
    const auto* viewport = database.look<Viewport>(id);
    return viewport == nullptr || viewport->isTile() ? nullptr : viewport;
}

bool contains(const FrozenLayers& layers, ObjectId layer) {
    return std::any_of(layers.begin(), layers.end(),
                       [layer](const auto& frozen) { return frozen.id == layer; });
}

SavedLayer savedLayer(ObjectId id, const Layer& layer, const Viewport* viewport) {
    SavedLayer saved;
    saved.layer = id;
    saved.colour = layer.colour;
    saved.on = layer.on;
    saved.frozen = layer.frozen;
    saved.locked = layer.locked;
    saved.plottable = layer.plottable;
    saved.frozenInViewport = viewport != nullptr && contains(viewport->frozenLayers, id);
    saved.linetype = layer.linetype;
    saved.lineweight = layer.lineweight;
    saved.transparency = layer.transparency;
    return saved;
}

void restoreLayer(Layer& layer, const SavedLayer& saved, bool mayFreeze) {
    layer.colour = saved.colour;
    layer.on = saved.on;
    layer.frozen = saved.frozen && mayFreeze;
    layer.locked = saved.locked;
    layer.plottable = saved.plottable;
    layer.linetype = saved.linetype;
    layer.lineweight = saved.lineweight;
    layer.transparency = saved.transparency;
}

Status restoreLayers(Database& database, const LayerState& state, UnknownLayers unknown,
                     ObjectId currentLayer) {
    for (const ObjectId id : database.ids(RecordKind::Layer)) {
        const auto saved = std::find_if(state.layers.begin(), state.layers.end(),
                                        [id](const SavedLayer& one) { return one.layer.id == id; });
        const bool known = saved != state.layers.end();
        if (!known && unknown == UnknownLayers::Keep) {
            continue;
        }
        Writing<Layer> layer(database, id);
        if (!layer) {
            return layer.status();
        }
        if (known) {
            restoreLayer(*layer, *saved, id != currentLayer);
        } else {
            layer->on = false;
        }
    }
    return Status::Ok;
}

Status restoreViewport(Database& database, const LayerState& state, ObjectId id) {
    if (freezingViewport(database, id) == nullptr) {
        return Status::Ok;
    }
    Writing<Viewport> viewport(database, id);
    if (!viewport) {
        return viewport.status();
    }
    FrozenLayers& frozen = viewport->frozenLayers;
    for (const SavedLayer& saved : state.layers) {
        std::erase_if(frozen, [&saved](const auto& layer) { return layer == saved.layer; });
        if (saved.frozenInViewport) {
            frozen.push_back(saved.layer);
        }
    }
    return Status::Ok;
}

}  // namespace

Added saveLayerState(Database& database, const std::string& name, const std::string& description,
                     ObjectId viewport) {
    if (name.empty()) {
        return {Status::InvalidName, {}};
    }
    LayerState state;
    state.name = name;
    state.description = description;
    for (const ObjectId id : database.ids(RecordKind::Layer)) {
        state.layers.push_back(
            savedLayer(id, *database.look<Layer>(id), freezingViewport(database, viewport)));
    }
    return database.add(std::move(state));
}

bool matchesLayerState(const Database& database, ObjectId state, ObjectId viewport) {
    const auto* saved = database.look<LayerState>(state);
    if (saved == nullptr) {
        return false;
    }
    const Viewport* freezing = freezingViewport(database, viewport);
    return std::all_of(saved->layers.begin(), saved->layers.end(), [&](const SavedLayer& one) {
        const DbObject* object = database.peek(one.layer);
        if (object == nullptr || object->isErased()) {
            return true;
        }
        SavedLayer now = savedLayer(one.layer, *database.look<Layer>(one.layer), freezing);
        if (freezing == nullptr) {
            now.frozenInViewport = one.frozenInViewport;
        }
        return now == one;
    });
}

Status restoreLayerState(Database& database, ObjectId state, ObjectId viewport,
                         UnknownLayers unknown) {
    LayerState saved;
    {
        const Reading<LayerState> reading(database, state);
        if (!reading) {
            return reading.status();
        }
        saved = *reading;
    }
    const UndoGroup together(database.undoLog(), "layer state");
    Writing<Current> current(database, database.first(RecordKind::Current));
    if (!current) {
        return current.status();
    }
    const Status layers = restoreLayers(database, saved, unknown, current->layer);
    if (layers != Status::Ok) {
        return layers;
    }
    current->layerState = saved.name;
    return restoreViewport(database, saved, viewport);
}

}  // namespace workbench::drawing
