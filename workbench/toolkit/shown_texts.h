#pragma once

#include <hostapi/zorq/menu_data.h>

#include <optional>
#include <string>
#include <string_view>

namespace workbench {

/// What the host knows of the texts that the toolkit shows.
class ShownTexts {
public:
    virtual ~ShownTexts() = default;
    /// The number of the string resource that a text came from; nothing for one from elsewhere.
    virtual std::optional<int> resourceNumberOf(std::wstring_view text) const = 0;
    /// The label of a menu item, by the record that stands on a panel; empty for a foreign record.
    virtual std::wstring labelOf(const VxToolPanelItemData* record) const = 0;
};

}  // namespace workbench
