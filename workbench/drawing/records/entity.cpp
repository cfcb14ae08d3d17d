#include "workbench/drawing/records/entity.h"

#include <array>
#include <cstddef>
#include <string>

namespace workbench::drawing {

namespace {

constexpr std::array<const char*, 6> kTypeNames{"line", "face", "prism", "pyramid", "box", "gable"};

Vec3 middleOf(const Polygon& corners) {
    Vec3 sum;
    for (const Vec3& corner : corners) {
        sum = sum + corner;
    }
    const auto count = static_cast<double>(corners.size());
    return {sum.x / count, sum.y / count, sum.z / count};
}

std::vector<Polygon> prismFaces(const Polygon& base, const Vec3& lift) {
    std::vector<Polygon> faces{Polygon(base.rbegin(), base.rend())};
    Polygon top;
    for (std::size_t i = 0; i < base.size(); ++i) {
        const Vec3& here = base[i];
        const Vec3& next = base[(i + 1) % base.size()];
        faces.push_back({here, next, next + lift, here + lift});
        top.push_back(here + lift);
    }
    faces.push_back(top);
    return faces;
}

std::vector<Polygon> pyramidFaces(const Polygon& base, double height) {
    const Vec3 apex = middleOf(base) + Vec3{0.0, 0.0, height};
    std::vector<Polygon> faces{Polygon(base.rbegin(), base.rend())};
    for (std::size_t i = 0; i < base.size(); ++i) {
        faces.push_back({base[i], base[(i + 1) % base.size()], apex});
    }
    return faces;
}

Polygon groundPlan(const Vec3& corner, const Vec3& size) {
    return {corner, corner + Vec3{size.x, 0.0, 0.0}, corner + Vec3{size.x, size.y, 0.0},
            corner + Vec3{0.0, size.y, 0.0}};
}

std::vector<Polygon> gableFaces(const Vec3& corner, const Vec3& size) {
    const bool alongX = size.x >= size.y;
    const Polygon plan = groundPlan(corner, size);
    const Vec3 start = alongX ? corner + Vec3{0.0, size.y / 2.0, size.z}
                              : corner + Vec3{size.x / 2.0, 0.0, size.z};
    const Vec3 end = start + (alongX ? Vec3{size.x, 0.0, 0.0} : Vec3{0.0, size.y, 0.0});
    const Polygon floor(plan.rbegin(), plan.rend());
    if (alongX) {
        return {floor,
                {plan[0], plan[1], end, start},
                {plan[1], plan[2], end},
                {plan[2], plan[3], start, end},
                {plan[3], plan[0], start}};
    }
    return {floor,
            {plan[0], plan[1], start},
            {plan[1], plan[2], end, start},
            {plan[2], plan[3], end},
            {plan[3], plan[0], start, end}};
}

std::size_t fewestPoints(EntityType type) {
    switch (type) {
    case EntityType::Line:
        return 2;
    case EntityType::Face:
    case EntityType::Prism:
    case EntityType::Pyramid:
        return 3;
    case EntityType::Box:
    case EntityType::Gable:
        break;
    }
    return 1;
}

}  // namespace

const std::vector<Property<Entity>>& Entity::properties() {
    static const std::vector<Property<Entity>> kProperties{
        property<Entity, &Entity::type>("type"),     property<Entity, &Entity::layer>("layer"),
        property<Entity, &Entity::colour>("colour"), property<Entity, &Entity::points>("points"),
        property<Entity, &Entity::size>("size"),     property<Entity, &Entity::height>("height"),
    };
    return kProperties;
}

Value toValue(EntityType member, const Database& /*database*/) {
    return kTypeNames[static_cast<std::size_t>(member)];
}

void fromValue(const Value& value, EntityType& member, const Database& /*database*/) {
    const std::string& text = value.asString();
    for (std::size_t i = 0; i < kTypeNames.size(); ++i) {
        if (text == kTypeNames[i]) {
            member = static_cast<EntityType>(i);
            return;
        }
    }
    throw ValueError("expected line, face, prism, pyramid, box or gable, got " + value.describe());
}

std::vector<Polygon> facesOf(const Entity& entity) {
    switch (entity.type) {
    case EntityType::Line:
        break;
    case EntityType::Face:
        return {entity.points};
    case EntityType::Prism:
        return prismFaces(entity.points, {0.0, 0.0, entity.height});
    case EntityType::Pyramid:
        return pyramidFaces(entity.points, entity.height);
    case EntityType::Box:
        return prismFaces(groundPlan(entity.points.front(), entity.size),
                          {0.0, 0.0, entity.size.z});
    case EntityType::Gable:
        return gableFaces(entity.points.front(), entity.size);
    }
    return {};
}

std::string entityProblem(const Entity& entity) {
    if (entity.layer.id.isNull()) {
        return "an entity needs a layer";
    }
    const std::size_t fewest = fewestPoints(entity.type);
    const bool exact = fewest == 1;
    if (entity.points.size() < fewest || (exact && entity.points.size() != fewest)) {
        const std::string type = kTypeNames[static_cast<std::size_t>(entity.type)];
        return "a " + type + " needs " + (exact ? "" : "at least ") + std::to_string(fewest) +
               (exact ? " point" : " points") + ", got " + std::to_string(entity.points.size());
    }
    return {};
}

}  // namespace workbench::drawing
