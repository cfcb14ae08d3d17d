#include "workbench/toolkit/toolkit.h"

#include "workbench/base/turn.h"
#include "workbench/windows/window_system.h"

namespace workbench {

namespace {

constexpr const wchar_t* kThemeName = L"ToolPanel";
constexpr int kAllElements = 0;

}  // namespace

Toolkit::Toolkit(WindowSystem& windows, Journal& journal, Answers& answers, const ShownTexts& texts)
    : m_windows(windows),
      m_journal(journal),
      m_answers(answers),
      m_texts(texts),
      m_notes(journal, texts),
      m_bars(*this),
      m_frame(*this),
      m_balloons(windows, m_notes),
      m_toolTips(windows, m_notes),
      m_boxes(answers, m_notes),
      m_menus(answers),
      m_mouse(*this) {}

void Toolkit::setShade(Shade shade) {
    if (shade == m_shade)
        return;
    const Turn turn;
    m_journal.add("control", {{"name", "MainFrame"},
                              {"field", "theme"},
                              {"old", nameOf(m_shade)},
                              {"new", nameOf(shade)}});
    m_shade = shade;
    Theme* const theme = m_themes.find(kThemeName);
    theme->changeElement(kAllElements);
    m_frame.forEachBar([theme](CQrUiPaletteSet& set) {
        if (set.GetTheme() == theme)
            set.ThemeModified(kAllElements);
    });
}

void Toolkit::idleUpdate() {
    const std::vector<CQrUiPaletteSet*>& bars = m_frame.bars();
    for (std::size_t index = 0; index < bars.size(); ++index)
        m_windows.send(bars[index]->m_hWnd, WM_IDLEUPDATECMDUI, 0, 0);
    m_balloons.review();
}

}  // namespace workbench
