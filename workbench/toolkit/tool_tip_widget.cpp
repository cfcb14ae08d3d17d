#include "workbench/toolkit/tool_tip_widget.h"

#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/input_messages.h"

#include <hostapi/qrui18/tool_tip.h>

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

constexpr UINT kEnding[] = {kLeftButtonDown, kLeftButtonUp, kLeftButtonDoubleClick,
                            kContextMenuMessage, kMouseLeave};

}  // namespace

void ToolTipWidget::addTool(const CWnd* tool, std::wstring text) {
    auto* const control = m_windows.widgetOf<ControlWidget>(tool);
    if (control == nullptr)
        return;
    control->setRelayedTip(std::move(text));
    if (!isTool(tool->m_hWnd))
        m_tools.push_back(tool->m_hWnd);
}

bool ToolTipWidget::handle(Window& /*window*/, UINT message, WPARAM wParam, LPARAM lParam,
                           LRESULT& answer) {
    answer = 0;
    if (message == TTM_ACTIVATE)
        activate(wParam != 0);
    else if (message == TTM_RELAYEVENT && lParam != 0)
        relay(*reinterpret_cast<const MSG*>(lParam));
    else if (message == WM_DESTROY)
        activate(false);
    return message == TTM_ACTIVATE || message == TTM_RELAYEVENT;
}

void ToolTipWidget::activate(bool active) {
    m_isActive = active;
    if (!active)
        hideOwn();
}

void ToolTipWidget::relay(const MSG& message) {
    const bool moves = message.message == WM_MOUSEMOVE;
    const bool ends =
        std::find(std::begin(kEnding), std::end(kEnding), message.message) != std::end(kEnding);
    const Window* const tool = isTool(message.hwnd) ? m_windows.find(message.hwnd) : nullptr;
    if (ends || (moves && tool == nullptr))
        hideOwn();
    else if (moves && m_isActive)
        m_tips.mouseOver(message.hwnd, dynamic_cast<const ControlWidget&>(*tool->widget).tip());
}

bool ToolTipWidget::isTool(HWND window) const {
    return std::find(m_tools.begin(), m_tools.end(), window) != m_tools.end();
}

void ToolTipWidget::hideOwn() {
    if (isTool(m_tips.over()))
        m_tips.hide();
}

}  // namespace workbench
