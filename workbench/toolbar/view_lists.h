#pragma once

#include "workbench/toolbar/toolbar_list.h"

namespace workbench {

// The lists of preset views, named views and scales, all of the current viewport. A choice changes
// what it shows, unless it is locked.

ToolbarEntries presetNames(const ToolbarScope& scope);
/// The preset from whose side the viewport looks now; empty for none.
std::wstring currentPreset(const ToolbarScope& scope);
void turnToPreset(const ToolbarScope& scope, const std::wstring& name);

ToolbarEntries viewNames(const ToolbarScope& scope);
/// The named view that the viewport shows; empty for none.
std::wstring appliedView(const ToolbarScope& scope);
void restoreView(const ToolbarScope& scope, const std::wstring& name);

/// Scales of a viewport on a sheet, and its own; empty elsewhere.
ToolbarEntries scaleNames(const ToolbarScope& scope);
std::wstring currentScale(const ToolbarScope& scope);
void setScale(const ToolbarScope& scope, const std::wstring& name);

}  // namespace workbench
