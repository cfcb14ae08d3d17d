#include "workbench/drawing/shown_layers.h"

#include "workbench/drawing/layer_overrides.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/layer_filter_expression.h"

#include <algorithm>

namespace workbench::drawing {

namespace {

bool isUsed(ObjectId layer, const Database& database) {
    const std::vector<ObjectId> entities = database.ids(RecordKind::Entity);
    return std::any_of(entities.begin(), entities.end(), [&](ObjectId id) {
        const auto* entity = database.look<Entity>(id);
        return entity != nullptr && entity->layer.id == layer;
    });
}

bool expressionShows(const std::string& expression, ObjectId id, const Database& database) {
    const auto* layer = database.look<Layer>(id);
    if (layer == nullptr) {
        return false;
    }
    try {
        return LayerFilterExpression(expression).matches(*layer);
    } catch (const ValueError&) {
        return false;
    }
}

bool isUnreconciled(ObjectId id, const Database& database) {
    const auto* layer = database.look<Layer>(id);
    return layer != nullptr && !layer->reconciled;
}

bool looksOtherInViewport(ObjectId layer, const Database& database) {
    const auto* viewport = database.look<Viewport>(activeViewport(database));
    return viewport != nullptr && hasOverride(*viewport, layer);
}

}  // namespace

bool filterShows(const LayerFilter& filter, ObjectId layer, const Database& database) {
    switch (filter.kind) {
    case FilterKind::All:
        return true;
    case FilterKind::Used:
        return isUsed(layer, database);
    case FilterKind::Unreconciled:
        return isUnreconciled(layer, database);
    case FilterKind::Overrides:
        return looksOtherInViewport(layer, database);
    case FilterKind::Property:
        return expressionShows(filter.expression, layer, database);
    case FilterKind::Group:
        break;
    }
    return std::any_of(filter.layers.begin(), filter.layers.end(),
                       [layer](const auto& member) { return member.id == layer; });
}

}  // namespace workbench::drawing
