#include "workbench/drawing/records/layer_state.h"

namespace workbench::drawing {

namespace {

const std::vector<Property<SavedLayer>>& savedLayerProperties() {
    using Saved = SavedLayer;
    static const std::vector<Property<Saved>> kProperties{
        property<Saved, &Saved::layer>("layer"),
        property<Saved, &Saved::colour>("colour"),
        property<Saved, &Saved::on>("on"),
        property<Saved, &Saved::frozen>("frozen"),
        property<Saved, &Saved::locked>("locked"),
        property<Saved, &Saved::plottable>("plottable"),
        property<Saved, &Saved::frozenInViewport>("frozenInViewport"),
        property<Saved, &Saved::linetype>("linetype"),
        property<Saved, &Saved::lineweight>("lineweight").within(-3, 211),
        property<Saved, &Saved::transparency>("transparency").within(0, 90),
    };
    return kProperties;
}

void setMember(SavedLayer& saved, const Value::Member& member, const Database& database) {
    for (const Property<SavedLayer>& property : savedLayerProperties()) {
        if (property.name == member.name) {
            property.checkRange(member.value);
            property.set(saved, member.value, database);
            return;
        }
    }
    throw ValueError("a saved layer has no \"" + member.name + "\"");
}

}  // namespace

const std::vector<Property<LayerState>>& LayerState::properties() {
    static const std::vector<Property<LayerState>> kProperties{
        property<LayerState, &LayerState::name>("name"),
        property<LayerState, &LayerState::description>("description"),
        property<LayerState, &LayerState::layers>("layers"),
    };
    return kProperties;
}

Value toValue(const SavedLayer& member, const Database& database) {
    if (referenceValue(member.layer, database).isNil()) {
        return {};
    }
    Value::Table table;
    for (const Property<SavedLayer>& property : savedLayerProperties()) {
        table.push_back({std::string(property.name), property.get(member, database)});
    }
    return table;
}

void fromValue(const Value& value, SavedLayer& member, const Database& database) {
    member = SavedLayer();
    for (const Value::Member& entry : value.asTable()) {
        setMember(member, entry, database);
    }
    if (member.layer.id.isNull()) {
        throw ValueError("a saved layer needs a \"layer\"");
    }
}

}  // namespace workbench::drawing
