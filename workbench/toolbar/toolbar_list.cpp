#include "workbench/toolbar/toolbar_list.h"

#include "workbench/base/text.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/text_style.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/editor.h"
#include "workbench/menu/menu_host.h"

#include <algorithm>

namespace workbench {

namespace {

using Entries = std::vector<std::wstring>;

template <class Data>
Entries namesOf(const ToolbarScope& scope) {
    Entries names;
    const Document* const document = scope.editor.documents().current();
    if (document == nullptr)
        return names;
    for (const drawing::ObjectId id : document->data().ids(Data::kKind))
        names.push_back(toWide(document->data().look<Data>(id)->name));
    return names;
}

int indexOf(const Entries& entries, std::wstring_view text) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [text](const auto& entry) { return equalNoCase(entry, text); });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

/// A list that shows and sets a system variable that holds the text.
template <const auto& Name>
int currentOf(const ToolbarScope& scope, const Entries& entries) {
    const Value value = scope.editor.read(Name);
    return value.isString() ? indexOf(entries, toWide(value.asString())) : -1;
}

template <const auto& Name>
void assign(const ToolbarScope& scope, const std::wstring& text) {
    scope.editor.variables().write(Name, toUtf8(text), VariableWriter::Program);
}

constexpr wchar_t kCurrentLayer[] = L"CLAYER";
constexpr wchar_t kCurrentLinetype[] = L"CELTYPE";
constexpr wchar_t kCurrentColour[] = L"CECOLOR";
constexpr wchar_t kCurrentLineweight[] = L"CELWEIGHT";
constexpr wchar_t kTextStyle[] = L"TEXTSTYLE";

Entries linetypes(const ToolbarScope& scope) {
    Entries names{L"ByLayer", L"ByBlock", L"Continuous"};
    const Document* const document = scope.editor.documents().current();
    if (document == nullptr)
        return names;
    for (const drawing::ObjectId id : document->data().ids(drawing::RecordKind::Layer)) {
        const std::wstring name = toWide(document->data().look<drawing::Layer>(id)->linetype);
        if (indexOf(names, name) < 0)
            names.push_back(name);
    }
    return names;
}

Entries colours(const ToolbarScope& /*scope*/) {
    return {L"ByLayer", L"ByBlock", L"Red",     L"Yellow", L"Green",
            L"Cyan",    L"Blue",    L"Magenta", L"White"};
}

Entries lineweights(const ToolbarScope& /*scope*/) {
    return {L"ByLayer", L"ByBlock", L"Default", L"0.13 mm", L"0.18 mm",
            L"0.25 mm", L"0.35 mm", L"0.50 mm", L"0.70 mm", L"1.00 mm"};
}

Entries scales(const ToolbarScope& /*scope*/) {
    return {L"Scale to fit", L"1:1", L"1:2", L"1:5", L"1:10", L"1:20", L"1:50", L"1:100"};
}

Entries standard(const ToolbarScope& /*scope*/) {
    return {L"Standard"};
}

Entries plotStyles(const ToolbarScope& /*scope*/) {
    return {L"ByLayer", L"ByBlock", L"Normal"};
}

Entries coordinateSystems(const ToolbarScope& /*scope*/) {
    return {L"World", L"View"};
}

Entries none(const ToolbarScope& /*scope*/) {
    return {};
}

Entries presets(const ToolbarScope& /*scope*/) {
    return {L"Top", L"Bottom", L"Front", L"Back", L"Left", L"Right"};
}

Entries workspaces(const ToolbarScope& scope) {
    Entries names;
    for (const auto& workspace : scope.menu.workspaces().all())
        names.push_back(toWide(workspace.name));
    return names;
}

void switchWorkspace(const ToolbarScope& scope, const std::wstring& name) {
    scope.menu.switchWorkspace(toUtf8(name));
}

drawing::Viewport const* activeViewport(const ToolbarScope& scope) {
    const Document* const document = scope.editor.documents().current();
    return document == nullptr ? nullptr
                               : document->data().look<drawing::Viewport>(
                                     drawing::activeViewport(document->data()));
}

int appliedView(const ToolbarScope& scope, const Entries& entries) {
    const drawing::Viewport* const viewport = activeViewport(scope);
    if (viewport == nullptr)
        return -1;
    const auto* const view =
        scope.editor.documents().current()->data().look<drawing::View>(viewport->appliedView.id);
    return view == nullptr ? -1 : indexOf(entries, toWide(view->name));
}

void restoreView(const ToolbarScope& scope, const std::wstring& name) {
    Document* const document = scope.editor.documents().current();
    if (document == nullptr)
        return;
    drawing::Database& database = document->data();
    const drawing::ObjectId id = database.find(drawing::RecordKind::View, toUtf8(name));
    const auto* const view = database.look<drawing::View>(id);
    drawing::Writing<drawing::Viewport> viewport(database, drawing::activeViewport(database));
    if (view == nullptr || !viewport)
        return;
    viewport->view = view->view;
    viewport->appliedView.id = id;
}

void undo(const ToolbarScope& scope, const std::wstring& /*text*/) {
    scope.editor.undo();
}

void redo(const ToolbarScope& scope, const std::wstring& /*text*/) {
    scope.editor.redo();
}

constexpr ToolbarControl kControls[] = {
    {1111, namesOf<drawing::Layer>, currentOf<kCurrentLayer>, assign<kCurrentLayer>},
    {2222, linetypes, currentOf<kCurrentLinetype>, assign<kCurrentLinetype>},
    {3333, colours, currentOf<kCurrentColour>, assign<kCurrentColour>},
    {4444, lineweights, currentOf<kCurrentLineweight>, assign<kCurrentLineweight>},
    {5555, none, nullptr, nullptr},
    {6666, presets, nullptr, nullptr},
    {6667, namesOf<drawing::View>, appliedView, restoreView},
    {7777, scales, nullptr, nullptr},
    {8888, plotStyles, nullptr, nullptr},
    {9999, coordinateSystems, nullptr, nullptr},
    {11111, standard, nullptr, nullptr},
    {11117, namesOf<drawing::TextStyle>, currentOf<kTextStyle>, assign<kTextStyle>},
    {11118, standard, nullptr, nullptr},
    {11119, workspaces, nullptr, switchWorkspace},
    {44445, nullptr, nullptr, undo},
    {55556, nullptr, nullptr, redo},
    {11120, standard, nullptr, nullptr},
    {11122, none, nullptr, nullptr},
};

}  // namespace

const ToolbarControl* findToolbarControl(unsigned id) {
    const auto* const found =
        std::find_if(std::begin(kControls), std::end(kControls),
                     [id](const ToolbarControl& control) { return control.id == id; });
    return found == std::end(kControls) ? nullptr : found;
}

}  // namespace workbench
