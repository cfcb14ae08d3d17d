#include "workbench/toolbar/toolbar_list.h"

#include "workbench/base/text.h"
#include "workbench/editor/editor.h"
#include "workbench/menu/menu_host.h"
#include "workbench/toolbar/property_lists.h"
#include "workbench/toolbar/view_lists.h"

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

// Variables that name the entry in force.
constexpr wchar_t kLayer[] = L"CLAYER";
constexpr wchar_t kLinetype[] = L"CELTYPE";
constexpr wchar_t kColour[] = L"CECOLOR";
constexpr wchar_t kLineweight[] = L"CELWEIGHT";
constexpr wchar_t kTextStyle[] = L"TEXTSTYLE";
constexpr wchar_t kPlotStyle[] = L"CPLOTSTYLE";
constexpr wchar_t kCoordinateSystem[] = L"CUCS";
constexpr wchar_t kDimensionStyle[] = L"CDIMSTYLE";
constexpr wchar_t kTableStyle[] = L"CTABLESTYLE";
constexpr wchar_t kLeaderStyle[] = L"CLEADERSTYLE";

template <const auto& Variable>
std::wstring valueOf(const ToolbarScope& scope) {
    return nameIn(scope, Variable);
}

template <const auto& Variable>
void assign(const ToolbarScope& scope, const std::wstring& text) {
    setName(scope, Variable, text);
}

template <const auto& Variable>
ToolbarEntries stylesOf(const ToolbarScope& scope) {
    return styleNames(scope, Variable);
}

/// What the drawings of this host don't have: blocks, texts to search.
ToolbarEntries none(const ToolbarScope& /*scope*/) {
    return {};
}

ToolbarEntries workspaces(const ToolbarScope& scope) {
    ToolbarEntries names;
    for (const auto& workspace : scope.menu.workspaces().all())
        names.push_back(toWide(workspace.name));
    return names;
}

std::wstring currentWorkspace(const ToolbarScope& scope) {
    return toWide(scope.menu.workspaces().current());
}

void switchWorkspace(const ToolbarScope& scope, const std::wstring& name) {
    scope.menu.switchWorkspace(toUtf8(name));
}

void undo(const ToolbarScope& scope, const std::wstring& /*text*/) {
    scope.editor.undo();
}

void redo(const ToolbarScope& scope, const std::wstring& /*text*/) {
    scope.editor.redo();
}

constexpr ToolbarControl kControls[] = {
    {1111, layerNames, valueOf<kLayer>, assign<kLayer>},
    {2222, linetypeNames, valueOf<kLinetype>, assign<kLinetype>},
    {3333, colourNames, valueOf<kColour>, assign<kColour>},
    {4444, lineweightNames, valueOf<kLineweight>, assign<kLineweight>},
    {5555, none, nullptr, nullptr},
    {6666, presetNames, currentPreset, turnToPreset},
    {6667, viewNames, appliedView, restoreView},
    {7777, scaleNames, currentScale, setScale},
    {8888, plotStyleNames, valueOf<kPlotStyle>, assign<kPlotStyle>},
    {9999, coordinateSystemNames, valueOf<kCoordinateSystem>, assign<kCoordinateSystem>},
    {11111, stylesOf<kDimensionStyle>, valueOf<kDimensionStyle>, assign<kDimensionStyle>},
    {11117, textStyleNames, valueOf<kTextStyle>, assign<kTextStyle>},
    {11118, stylesOf<kTableStyle>, valueOf<kTableStyle>, assign<kTableStyle>},
    {11119, workspaces, currentWorkspace, switchWorkspace},
    {44445, nullptr, nullptr, undo},
    {55556, nullptr, nullptr, redo},
    {11120, stylesOf<kLeaderStyle>, valueOf<kLeaderStyle>, assign<kLeaderStyle>},
    {11122, none, nullptr, nullptr},
};

}  // namespace

const ToolbarControl* findToolbarControl(unsigned id) {
    const auto* const found =
        std::find_if(std::begin(kControls), std::end(kControls),
                     [id](const ToolbarControl& control) { return control.id == id; });
    return found == std::end(kControls) ? nullptr : found;
}

int indexOfEntry(const ToolbarEntries& entries, std::wstring_view text) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [text](const auto& entry) { return equalNoCase(entry, text); });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

}  // namespace workbench
