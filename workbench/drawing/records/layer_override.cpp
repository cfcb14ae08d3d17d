#include "workbench/drawing/records/layer_override.h"

#include "workbench/drawing/records/layer.h"

#include <utility>

namespace workbench::drawing {

namespace {

/// Does something with the name of each property that can be overridden, and with its place.
template <class Override, class Action>
void forEachProperty(Override& override, Action action) {
    action("colour", override.colour);
    action("linetype", override.linetype);
    action("lineweight", override.lineweight);
    action("transparency", override.transparency);
}

template <class Type>
void setProperty(const Value::Member& entry, std::optional<Type>& place, const Database& database) {
    // The layer's own property knows the range.
    for (const Property<Layer>& property : Layer::properties()) {
        if (property.name == entry.name)
            property.checkRange(entry.value);
    }
    Type fresh{};
    fromValue(entry.value, fresh, database);
    place = std::move(fresh);
}

void setMember(LayerOverride& override, const Value::Member& entry, const Database& database) {
    bool known = entry.name == "layer";
    if (known)
        fromValue(entry.value, override.layer, database);
    forEachProperty(override, [&](std::string_view name, auto& place) {
        if (name != entry.name)
            return;
        known = true;
        setProperty(entry, place, database);
    });
    if (!known)
        throw ValueError("a layer override has no \"" + entry.name + "\"");
}

}  // namespace

Value toValue(const LayerOverride& member, const Database& database) {
    const Value layer = toValue(member.layer, database);
    if (layer.isNil())
        return {};
    Value::Table table{{"layer", layer}};
    forEachProperty(member, [&](std::string_view name, const auto& place) {
        if (place)
            table.push_back({std::string(name), toValue(*place, database)});
    });
    return table;
}

void fromValue(const Value& value, LayerOverride& member, const Database& database) {
    member = LayerOverride();
    for (const Value::Member& entry : value.asTable())
        setMember(member, entry, database);
    if (member.layer.id.isNull())
        throw ValueError("a layer override needs a \"layer\"");
}

}  // namespace workbench::drawing
