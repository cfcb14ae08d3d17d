#include "workbench/desktop/app/collapsed_panels.h"

#include "workbench/base/text.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>

namespace workbench::desktop {

std::vector<std::wstring> collapsedPanels(Toolkit& toolkit) {
    std::vector<std::wstring> ids;
    for (const CQrUiPanel* panel : allPanels(toolkit.windows())) {
        if (toolkit.panels().of(panel).collapsed)
            ids.push_back(toWide(toolkit.windows().find(panel->m_hWnd)->name));
    }
    return ids;
}

void collapsePanels(Toolkit& toolkit, const std::vector<std::wstring>& ids) {
    for (const CQrUiPanel* panel : allPanels(toolkit.windows())) {
        Window* const window = toolkit.windows().find(panel->m_hWnd);
        const bool collapsed = std::find(ids.begin(), ids.end(), toWide(window->name)) != ids.end();
        static_cast<PanelWidget&>(*window->widget).collapse(*window, collapsed);
    }
}

}  // namespace workbench::desktop
