#pragma once

#include <string_view>

/// The families that follow events beside their controls. Each says in its row what concerns it; an
/// event goes to them in a fixed order.

/// Refreshes the families that a system variable's change concerns.
void refreshFamiliesForVariable(std::wstring_view name);
/// Refreshes the families that a command's end concerns.
void refreshFamiliesForCommand(std::wstring_view name);
/// Refreshes the families that follow the current document.
void refreshFamiliesForDocument();
