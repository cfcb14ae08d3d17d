#include "workbench/toolkit/tool_tips.h"

namespace workbench {

namespace {

constexpr UINT kRestMs = 500;

}  // namespace

ToolTips::ToolTips(WindowSystem& windows, const TextNotes& notes)
    : m_windows(windows),
      m_notes(notes),
      m_rest(windows, "ToolTip", [this] { showNow(); }) {}

void ToolTips::mouseOver(HWND window, const std::wstring& text) {
    if (window == m_over && text == m_text)
        return;
    hide();
    if (text.empty())
        return;
    m_over = window;
    m_text = text;
    m_rest.start(kRestMs);
}

void ToolTips::mouseOverRelayed(HWND window) {
    if (window != m_over)
        hide();
}

void ToolTips::show(HWND window, const std::wstring& text) {
    if (window == m_over && text == m_shown)
        return;
    m_over = window;
    m_text = text;
    showNow();
}

void ToolTips::hide() {
    m_rest.stop();
    if (m_presenter && !m_shown.empty())
        m_presenter(m_over, {});
    m_over = nullptr;
    m_text.clear();
    m_shown.clear();
}

void ToolTips::showNow() {
    m_rest.stop();
    if (m_windows.find(m_over) == nullptr)
        return;
    m_shown = m_text;
    m_notes.note("tip", m_shown, m_windows.ownerName(m_over));
    if (m_presenter)
        m_presenter(m_over, m_shown);
}

}  // namespace workbench
