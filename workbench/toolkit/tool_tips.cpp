#include "workbench/toolkit/tool_tips.h"

namespace workbench {

namespace {

constexpr UINT kRestTimer = 1;
constexpr UINT kRestMs = 500;

}  // namespace

class ToolTips::RestWidget final : public Widget {
public:
    explicit RestWidget(ToolTips& tips) : m_tips(tips) {}
    bool handle(Window& /*window*/, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                LRESULT& /*answer*/) override {
        if (message != WM_TIMER)
            return false;
        m_tips.showNow();
        return true;
    }

private:
    ToolTips& m_tips;
};

ToolTips::ToolTips(WindowSystem& windows, const TextNotes& notes)
    : m_windows(windows),
      m_notes(notes) {
    WindowCreation creation;
    creation.className = "ToolTip";
    creation.widget = std::make_unique<RestWidget>(*this);
    m_windows.create(m_clock, std::move(creation));
}

ToolTips::~ToolTips() {
    m_windows.destroy(m_clock.m_hWnd);
}

void ToolTips::mouseOver(HWND window, const std::wstring& text) {
    if (window == m_over && text == m_text)
        return;
    hide();
    if (text.empty())
        return;
    m_over = window;
    m_text = text;
    m_windows.timers().start(m_clock.m_hWnd, kRestTimer, kRestMs);
}

void ToolTips::show(HWND window, const std::wstring& text) {
    if (window == m_over && text == m_shown)
        return;
    m_over = window;
    m_text = text;
    showNow();
}

void ToolTips::hide() {
    m_windows.timers().stop(m_clock.m_hWnd, kRestTimer);
    if (m_presenter && !m_shown.empty())
        m_presenter(m_over, {});
    m_over = nullptr;
    m_text.clear();
    m_shown.clear();
}

void ToolTips::showNow() {
    m_windows.timers().stop(m_clock.m_hWnd, kRestTimer);
    if (m_windows.find(m_over) == nullptr)
        return;
    m_shown = m_text;
    m_notes.note("tip", m_shown, m_windows.ownerName(m_over));
    if (m_presenter)
        m_presenter(m_over, m_shown);
}

}  // namespace workbench
