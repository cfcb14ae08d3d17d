#pragma once

#include "workbench/menu/menu_data.h"

#include <hostapi/zorq/menu_data.h>

#include <optional>
#include <utility>

namespace workbench {

/// The customization dialog as far as the dashboard knows it: which panel it is to open on.
class CustomizationDialog final : public VxCustomizationInterface {
public:
    /// The panel that the dialog is to open on; nothing unless one was selected since it opened last.
    const std::optional<PanelKey>& selection() const { return m_selection; }
    /// The same for the dialog that opens now: the next one opens on none.
    std::optional<PanelKey> takeSelection() { return std::exchange(m_selection, std::nullopt); }

    // VxCustomizationInterface:
    void selectPanel(const VxString& menuGroup, const VxString& panelId) override;

private:
    std::optional<PanelKey> m_selection;
};

}  // namespace workbench
