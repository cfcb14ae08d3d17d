#include "workbench/toolkit/toolkit.h"

#include "workbench/windows/window_system.h"

namespace workbench {

Toolkit::Toolkit(WindowSystem& windows, Journal& journal, Answers& answers, const ShownTexts& texts)
    : m_windows(windows),
      m_journal(journal),
      m_answers(answers),
      m_texts(texts),
      m_notes(journal, texts),
      m_frame(windows, m_paletteSets, m_tools),
      m_balloons(windows, m_notes),
      m_toolTips(windows, m_notes),
      m_boxes(answers, m_notes),
      m_menus(answers),
      m_mouse(*this) {}

void Toolkit::idleUpdate() {
    const std::vector<CQrUiPaletteSet*>& bars = m_frame.bars();
    for (std::size_t index = 0; index < bars.size(); ++index)
        m_windows.send(bars[index]->m_hWnd, WM_IDLEUPDATECMDUI, 0, 0);
}

}  // namespace workbench
