#pragma once

#include <string_view>

/// Makes the tool of the current material mode the flyout's current one, if `name`, a system
/// variable's or a command's, stands for a change of it. The first call does so whatever the name.
void refreshMaterialModeFor(std::wstring_view name);
