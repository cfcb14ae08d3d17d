#pragma once

#include "workbench/menu/menu_data.h"

#include <hostapi/zorq/menu_data.h>

#include <optional>

namespace workbench {

/// The customization dialog as far as the dashboard knows it: which panel it is to open on.
class CustomizationDialog final : public VxCustomizationInterface {
public:
    /// The panel that was selected last; nothing before the first selection.
    const std::optional<PanelKey>& selection() const { return m_selection; }

    // VxCustomizationInterface:
    void selectPanel(const VxString& menuGroup, const VxString& panelId) override;

private:
    std::optional<PanelKey> m_selection;
};

}  // namespace workbench
