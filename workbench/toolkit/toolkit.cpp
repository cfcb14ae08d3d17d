#include "workbench/toolkit/toolkit.h"

#include "workbench/windows/window_system.h"

namespace workbench {

Toolkit::Toolkit(Workbench& workbench)
    : m_windows(workbench.windows()),
      m_frame(m_windows, m_paletteSets, m_tools),
      m_balloons(m_windows, workbench.journal()),
      m_toolTips(m_windows, workbench.journal()),
      m_boxes(workbench.answers(), workbench.journal()),
      m_menus(workbench.answers()),
      m_mouse(m_windows) {}

void Toolkit::idleUpdate() {
    const std::vector<CQrUiPaletteSet*>& bars = m_frame.bars();
    for (std::size_t index = 0; index < bars.size(); ++index)
        m_windows.send(bars[index]->m_hWnd, WM_IDLEUPDATECMDUI, 0, 0);
}

}  // namespace workbench
