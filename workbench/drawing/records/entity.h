#pragma once

#include "workbench/drawing/database/property.h"

#include <vector>

namespace workbench::drawing {

/// The forms of geometry.
enum class EntityType {
    Line,     ///< a run of straight pieces through the points
    Face,     ///< a flat polygon with the points as corners
    Prism,    ///< the polygon of the points, lifted by the height along Z
    Pyramid,  ///< the polygon of the points with an apex above their middle, at the height
    Box,      ///< from the first point, with the size along the axes
    Gable,    ///< a roof over the box's ground plan: two slopes and two gables
};

/// A thing drawn, on a layer.
struct Entity {
    static constexpr RecordKind kKind = RecordKind::Entity;
    static const std::vector<Property<Entity>>& properties();

    EntityType type = EntityType::Line;
    Ref<RecordKind::Layer> layer;  // never null in a drawing that was read
    Colour colour = Colour::byLayer();
    std::vector<Vec3> points;  // one for a box and a gable
    Vec3 size;                 // of a box or a gable
    double height = 0.0;       // of a prism or a pyramid

    friend bool operator==(const Entity&, const Entity&) = default;
};

/// "line", "face", "prism", "pyramid", "box", "gable".
Value toValue(EntityType member, const Database& database);
void fromValue(const Value& value, EntityType& member, const Database& database);

/// A flat polygon of a shape, its corners in order.
using Polygon = std::vector<Vec3>;

/// The faces that an entity shows; empty for a line. A gable's ridge runs along its longer side
/// of the ground plan, along X when both are equal.
std::vector<Polygon> facesOf(const Entity& entity);

/// What keeps an entity from having its form, in words; empty when all is well.
std::string entityProblem(const Entity& entity);

}  // namespace workbench::drawing
