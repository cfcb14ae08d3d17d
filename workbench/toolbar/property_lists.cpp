#include "workbench/toolbar/property_lists.h"

#include "workbench/base/text.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/text_style.h"
#include "workbench/drawing/shown_layers.h"
#include "workbench/editor/editor.h"

#include <array>
#include <cstddef>
#include <initializer_list>

namespace workbench {

namespace {

using drawing::Colour;
using drawing::ColourMethod;
using drawing::Database;
using drawing::Entity;
using drawing::Layer;

constexpr int kDefaultLineweight = -3;

const Database* databaseOf(const ToolbarScope& scope) {
    const Document* const document = scope.editor.documents().current();
    return document == nullptr ? nullptr : &document->data();
}

/// Does something with the data of each object of a kind in the present drawing.
template <class Data, class Action>
void forEach(const ToolbarScope& scope, Action action) {
    const Database* const database = databaseOf(scope);
    if (database == nullptr)
        return;
    for (const drawing::ObjectId id : database->ids(Data::kKind))
        action(*database->look<Data>(id));
}

template <class Data>
ToolbarEntries namesOf(const ToolbarScope& scope) {
    ToolbarEntries names;
    forEach<Data>(scope, [&names](const Data& data) { names.push_back(toWide(data.name)); });
    return names;
}

/// Whether the list of layers has one. The current one always stands in it: it is on show there.
bool isListed(drawing::ObjectId layer, const Database& database, const LayerDisplay& display) {
    const auto* const filters =
        database.look<drawing::LayerFilters>(database.first(drawing::RecordKind::LayerFilters));
    if (!display.isByFilter() || filters == nullptr || layer == drawing::currentLayer(database))
        return true;
    const drawing::LayerFilter* const filter = drawing::findFilter(filters->root, filters->current);
    return filter == nullptr ||
           drawing::filterShows(*filter, layer, database) != display.isInverted();
}

void addOnce(ToolbarEntries& entries, const std::wstring& text) {
    if (!text.empty() && indexOfEntry(entries, text) < 0)
        entries.push_back(text);
}

/// A colour as CECOLOR names it; empty for one that no object can be told to have.
std::wstring nameOf(const Colour& colour) {
    static constexpr std::array<const wchar_t*, 7> kBasic = {L"Red",  L"Yellow",  L"Green", L"Cyan",
                                                             L"Blue", L"Magenta", L"White"};
    if (colour.method == ColourMethod::ByEntity)
        return {};
    const auto index = static_cast<std::size_t>(colour.index);
    if (colour.method == ColourMethod::ByIndex && index >= 1 && index <= kBasic.size())
        return kBasic[index - 1];
    const Value value = drawing::colourValue(colour);
    return value.isString() ? toWide(value.asString()) : std::to_wstring(value.asInteger());
}

/// Hundredths of a millimetre as "0.25 mm".
std::wstring lineweightName(int weight) {
    if (weight == kDefaultLineweight)
        return L"Default";
    if (weight < 0)
        return {};
    const std::wstring hundredths = std::to_wstring(100 + weight % 100).substr(1);
    return std::to_wstring(weight / 100) + L"." + hundredths + L" mm";
}

}  // namespace

std::wstring nameIn(const ToolbarScope& scope, const wchar_t* variable) {
    const Value value = scope.editor.read(variable);
    return value.isString() ? toWide(value.asString()) : std::wstring();
}

void setName(const ToolbarScope& scope, const wchar_t* variable, const std::wstring& name) {
    scope.editor.variables().write(variable, toUtf8(name), VariableWriter::Program);
}

ToolbarEntries layerNames(const ToolbarScope& scope) {
    ToolbarEntries names;
    const Database* const database = databaseOf(scope);
    if (database == nullptr)
        return names;
    for (const drawing::ObjectId id : database->ids(drawing::RecordKind::Layer)) {
        if (isListed(id, *database, scope.editor.layerDisplay()))
            names.push_back(toWide(database->look<Layer>(id)->name));
    }
    return names;
}

ToolbarEntries textStyleNames(const ToolbarScope& scope) {
    return namesOf<drawing::TextStyle>(scope);
}

ToolbarEntries linetypeNames(const ToolbarScope& scope) {
    ToolbarEntries names{L"ByLayer", L"ByBlock", L"Continuous"};
    forEach<Layer>(scope, [&names](const Layer& layer) { addOnce(names, toWide(layer.linetype)); });
    addOnce(names, nameIn(scope, L"CELTYPE"));
    return names;
}

ToolbarEntries colourNames(const ToolbarScope& scope) {
    ToolbarEntries names{L"ByLayer", L"ByBlock", L"Red",     L"Yellow", L"Green",
                         L"Cyan",    L"Blue",    L"Magenta", L"White"};
    forEach<Layer>(scope, [&names](const Layer& layer) { addOnce(names, nameOf(layer.colour)); });
    forEach<Entity>(scope,
                    [&names](const Entity& entity) { addOnce(names, nameOf(entity.colour)); });
    addOnce(names, nameIn(scope, L"CECOLOR"));
    return names;
}

ToolbarEntries lineweightNames(const ToolbarScope& scope) {
    ToolbarEntries names{L"ByLayer", L"ByBlock", L"Default"};
    for (const int weight : {13, 18, 25, 35, 50, 70, 100})
        names.push_back(lineweightName(weight));
    forEach<Layer>(
        scope, [&names](const Layer& layer) { addOnce(names, lineweightName(layer.lineweight)); });
    addOnce(names, nameIn(scope, L"CELWEIGHT"));
    return names;
}

ToolbarEntries plotStyleNames(const ToolbarScope& scope) {
    ToolbarEntries names{L"ByLayer", L"ByBlock", L"Normal"};
    addOnce(names, nameIn(scope, L"CPLOTSTYLE"));
    return names;
}

ToolbarEntries coordinateSystemNames(const ToolbarScope& scope) {
    ToolbarEntries names{L"World", L"Top", L"Bottom", L"Front", L"Back", L"Left", L"Right"};
    addOnce(names, nameIn(scope, L"CUCS"));
    return names;
}

ToolbarEntries styleNames(const ToolbarScope& scope, const wchar_t* variable) {
    ToolbarEntries names{L"Standard"};
    addOnce(names, nameIn(scope, variable));
    return names;
}

}  // namespace workbench
