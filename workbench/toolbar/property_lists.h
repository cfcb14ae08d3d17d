#pragma once

#include "workbench/toolbar/toolbar_list.h"

namespace workbench {

// The entries of the lists of layers, linetypes, colours, lineweights and styles. All but the layers
// and text styles begin with what every drawing has.

ToolbarEntries layerNames(const ToolbarScope& scope);
ToolbarEntries textStyleNames(const ToolbarScope& scope);
ToolbarEntries linetypeNames(const ToolbarScope& scope);
ToolbarEntries colourNames(const ToolbarScope& scope);
ToolbarEntries lineweightNames(const ToolbarScope& scope);
ToolbarEntries plotStyleNames(const ToolbarScope& scope);
ToolbarEntries coordinateSystemNames(const ToolbarScope& scope);

/// The standard style and the one that a variable names.
ToolbarEntries styleNames(const ToolbarScope& scope, const wchar_t* variable);

/// The value of a variable that names an entry; empty if it can't be had.
std::wstring nameIn(const ToolbarScope& scope, const wchar_t* variable);
/// Sets such a variable, which refuses what the drawing doesn't have.
void setName(const ToolbarScope& scope, const wchar_t* variable, const std::wstring& name);

}  // namespace workbench
