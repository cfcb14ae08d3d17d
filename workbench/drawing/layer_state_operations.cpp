#include "workbench/drawing/layer_state_operations.h"

#include "workbench/drawing/layer_overrides.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layer_state.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace workbench::drawing {

namespace {

/// The viewport if it is one of a layout, where layers can be other than elsewhere.
const Viewport* layoutViewport(const Database& database, ObjectId id) {
    const auto* viewport = database.look<Viewport>(id);
    return viewport == nullptr || viewport->isTile() ? nullptr : viewport;
}

SavedLayer savedLayer(ObjectId id, const Layer& own, const Viewport* viewport) {
    const Layer layer = viewport == nullptr ? own : lookIn(*viewport, id, own);
    SavedLayer saved;
    saved.layer = id;
    saved.colour = layer.colour;
    saved.on = layer.on;
    saved.frozen = layer.frozen;
    saved.locked = layer.locked;
    saved.plottable = layer.plottable;
    saved.frozenInViewport = viewport != nullptr && isFrozenInViewport(*viewport, id);
    saved.linetype = layer.linetype;
    saved.lineweight = layer.lineweight;
    saved.transparency = layer.transparency;
    return saved;
}

/// Whether a layer is as it was saved.
bool isAsSaved(ObjectId id, const Layer& layer, const SavedLayer& saved, const Viewport* viewport) {
    SavedLayer now = savedLayer(id, layer, viewport);
    if (viewport == nullptr)
        now.frozenInViewport = saved.frozenInViewport;
    return now == saved;
}

void restoreSwitches(Layer& layer, const SavedLayer& saved, bool mayFreeze) {
    layer.on = saved.on;
    layer.frozen = saved.frozen && mayFreeze;
    layer.locked = saved.locked;
    layer.plottable = saved.plottable;
}

void restoreLook(Layer& layer, const SavedLayer& saved) {
    layer.colour = saved.colour;
    layer.linetype = saved.linetype;
    layer.lineweight = saved.lineweight;
    layer.transparency = saved.transparency;
}

/// Brings the layers of a state back, one after the other.
class Restorer {
public:
    Restorer(Database& database, ObjectId viewport, UnknownLayers unknown, RestoredLook look)
        : m_database(database),
          m_viewport(viewport),
          m_unknown(unknown),
          m_look(look),
          m_currentLayer(currentLayer(database)) {
        if (const Viewport* inLayout = layoutViewport(database, viewport))
            m_changed = *inLayout;
    }

    Status restore(const LayerState& state) {
        for (const ObjectId id : m_database.ids(RecordKind::Layer)) {
            const auto saved =
                std::find_if(state.layers.begin(), state.layers.end(),
                             [id](const SavedLayer& one) { return one.layer.id == id; });
            const Status status =
                saved == state.layers.end() ? settleUnknown(id) : restoreLayer(id, *saved);
            if (status != Status::Ok)
                return status;
        }
        return m_changed ? write(m_viewport, *m_changed) : Status::Ok;
    }

private:
    const Layer& layerOf(ObjectId id) const { return *m_database.look<Layer>(id); }

    Status settleUnknown(ObjectId id) {
        Layer changed = layerOf(id);
        changed.on = changed.on && m_unknown == UnknownLayers::Keep;
        return write(id, changed);
    }

    Status restoreLayer(ObjectId id, const SavedLayer& saved) {
        if (isAsSaved(id, layerOf(id), saved, m_changed ? &*m_changed : nullptr))
            return Status::Ok;
        Layer wanted = layerOf(id);
        restoreSwitches(wanted, saved, id != m_currentLayer);
        Layer own = wanted;
        restoreLook(wanted, saved);
        if (!m_changed || m_look == RestoredLook::OfLayers)
            own = wanted;
        if (m_changed) {
            freezeInViewport(*m_changed, id, saved.frozenInViewport);
            overrideLook(*m_changed, id, own, wanted);
        }
        return write(id, own);
    }

    /// A record that would stay as it is isn't opened.
    template <class Data>
    Status write(ObjectId id, const Data& changed) {
        if (*m_database.look<Data>(id) == changed)
            return Status::Ok;
        Writing<Data> writing(m_database, id);
        if (writing)
            *writing = changed;
        return writing.status();
    }

    Database& m_database;
    ObjectId m_viewport;
    std::optional<Viewport>
        m_changed;  // how the viewport is to be; nothing: it is none of a layout
    UnknownLayers m_unknown;
    RestoredLook m_look;
    ObjectId m_currentLayer;
};

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
            savedLayer(id, *database.look<Layer>(id), layoutViewport(database, viewport)));
    }
    return database.add(std::move(state));
}

bool matchesLayerState(const Database& database, ObjectId state, ObjectId viewport) {
    const auto* saved = database.look<LayerState>(state);
    if (saved == nullptr) {
        return false;
    }
    const Viewport* inLayout = layoutViewport(database, viewport);
    return std::all_of(saved->layers.begin(), saved->layers.end(), [&](const SavedLayer& one) {
        const DbObject* object = database.peek(one.layer);
        return object == nullptr || object->isErased() ||
               isAsSaved(one.layer, *database.look<Layer>(one.layer), one, inLayout);
    });
}

Status restoreLayerState(Database& database, ObjectId state, ObjectId viewport,
                         UnknownLayers unknown, RestoredLook look) {
    LayerState saved;
    {
        const Reading<LayerState> reading(database, state);
        if (!reading) {
            return reading.status();
        }
        saved = *reading;
    }
    const UndoGroup together(database.undoLog(), "layer state");
    Restorer restorer(database, viewport, unknown, look);
    Writing<Current> current(database, database.first(RecordKind::Current));
    if (!current) {
        return current.status();
    }
    const Status status = restorer.restore(saved);
    if (status == Status::Ok)
        current->layerState = saved.name;
    return status;
}

}  // namespace workbench::drawing
