#pragma once

#include "workbench/toolkit/shown_texts.h"

namespace workbench {

class Workbench;

/// The texts of a workbench: its modules' string resources and its menu.
class HostTexts final : public ShownTexts {
public:
    /// Asks the workbench's units when it is asked itself, so it may be made before them.
    explicit HostTexts(Workbench& workbench) : m_workbench(workbench) {}

    // ShownTexts:
    std::optional<int> resourceNumberOf(std::wstring_view text) const override;
    std::wstring labelOf(const VxToolPanelItemData* record) const override;

private:
    Workbench& m_workbench;
};

}  // namespace workbench
