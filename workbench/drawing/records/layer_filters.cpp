#include "workbench/drawing/records/layer_filters.h"

#include "workbench/base/text.h"
#include "workbench/drawing/database/database.h"
#include "workbench/drawing/layer_overrides.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/layer_filter_expression.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace workbench::drawing {

namespace {

constexpr std::array<const char*, 6> kKindNames{"all",       "used",     "unreconciled",
                                                "overrides", "property", "group"};

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

void setMember(LayerFilter& filter, const Value::Member& member, const Database& database) {
    if (member.name == "name") {
        fromValue(member.value, filter.name, database);
    } else if (member.name == "kind") {
        fromValue(member.value, filter.kind, database);
    } else if (member.name == "expression") {
        filter.expression = member.value.asString();
        LayerFilterExpression check(filter.expression);
    } else if (member.name == "layers") {
        fromValue(member.value, filter.layers, database);
    } else if (member.name == "children") {
        fromValue(member.value, filter.children, database);
    } else {
        throw ValueError("a layer filter has no \"" + member.name + "\"");
    }
}

void collectNames(const LayerFilter& filter, std::vector<std::string>& names) {
    names.push_back(toUtf8(toUpper(toWide(filter.name))));
    for (const LayerFilter& child : filter.children) {
        collectNames(child, names);
    }
}

constexpr const char* kAllLayers = "All";

/// A filter below the root that a drawing keeps itself.
struct GeneratedFilter {
    FilterKind kind;
    const char* name;
};

constexpr GeneratedFilter kGenerated[] = {
    {FilterKind::Used, "All Used Layers"},
    {FilterKind::Unreconciled, "Unreconciled New Layers"},
    {FilterKind::Overrides, "Viewport Overrides"},
};

bool hasKind(const LayerFilter& filter, FilterKind kind) {
    return filter.kind == kind ||
           std::any_of(filter.children.begin(), filter.children.end(),
                       [kind](const LayerFilter& child) { return hasKind(child, kind); });
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

LayerFilters::LayerFilters() : current(kAllLayers) {
    root.name = kAllLayers;
    root.kind = FilterKind::All;
    addGenerated();
}

void LayerFilters::addGenerated() {
    for (const GeneratedFilter& generated : kGenerated) {
        if (hasKind(root, generated.kind) || findFilter(root, generated.name) != nullptr)
            continue;
        LayerFilter added;
        added.name = generated.name;
        added.kind = generated.kind;
        root.children.push_back(added);
    }
}

const std::vector<Property<LayerFilters>>& LayerFilters::properties() {
    static const std::vector<Property<LayerFilters>> kProperties{
        property<LayerFilters, &LayerFilters::root>("root"),
        property<LayerFilters, &LayerFilters::current>("current"),
    };
    return kProperties;
}

const LayerFilter* findFilter(const LayerFilter& start, std::string_view name) {
    if (equalNoCase(start.name, name)) {
        return &start;
    }
    for (const LayerFilter& child : start.children) {
        const LayerFilter* found = findFilter(child, name);
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

LayerFilter* findFilter(LayerFilter& start, std::string_view name) {
    return const_cast<LayerFilter*>(findFilter(static_cast<const LayerFilter&>(start), name));
}

const LayerFilter* findFilterParent(const LayerFilter& start, std::string_view name) {
    for (const LayerFilter& child : start.children) {
        if (equalNoCase(child.name, name)) {
            return &start;
        }
        const LayerFilter* found = findFilterParent(child, name);
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

LayerFilter* findFilterParent(LayerFilter& start, std::string_view name) {
    return const_cast<LayerFilter*>(findFilterParent(static_cast<const LayerFilter&>(start), name));
}

FilterNames nameProblemOf(const LayerFilter& root) {
    std::vector<std::string> names;
    collectNames(root, names);
    std::sort(names.begin(), names.end());
    if (names.front().empty())
        return FilterNames::Empty;
    return std::adjacent_find(names.begin(), names.end()) == names.end() ? FilterNames::Good
                                                                         : FilterNames::Twice;
}

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

Value toValue(FilterKind member, const Database& /*database*/) {
    return kKindNames[static_cast<std::size_t>(member)];
}

void fromValue(const Value& value, FilterKind& member, const Database& /*database*/) {
    const std::string& text = value.asString();
    const auto found = std::find(kKindNames.begin(), kKindNames.end(), text);
    if (found == kKindNames.end()) {
        throw ValueError("expected all, used, unreconciled, overrides, property or group, got " +
                         value.describe());
    }
    member = static_cast<FilterKind>(found - kKindNames.begin());
}

Value toValue(const LayerFilter& member, const Database& database) {
    Value::Table table{{"name", member.name}, {"kind", toValue(member.kind, database)}};
    if (member.kind == FilterKind::Property) {
        table.push_back({"expression", member.expression});
    }
    if (member.kind == FilterKind::Group) {
        table.push_back({"layers", toValue(member.layers, database)});
    }
    if (!member.children.empty()) {
        table.push_back({"children", toValue(member.children, database)});
    }
    return table;
}

void fromValue(const Value& value, LayerFilter& member, const Database& database) {
    member = LayerFilter();
    for (const Value::Member& entry : value.asTable()) {
        setMember(member, entry, database);
    }
    switch (nameProblemOf(member)) {
    case FilterNames::Empty:
        throw ValueError("a layer filter needs a \"name\"");
    case FilterNames::Twice:
        throw ValueError("two layer filters bear the same name");
    case FilterNames::Good:
        break;
    }
}

}  // namespace workbench::drawing
