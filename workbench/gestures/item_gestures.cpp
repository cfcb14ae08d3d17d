#include "workbench/gestures/item_gestures.h"

#include "workbench/base/text.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/flyout_menu.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/row_layout.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/tool_panel_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace workbench::gestures {

namespace {

bool takesClicks(const CQrUiToolPanelItem& item) {
    return (item.GetState() & (kItemDisabled | kItemHidden)) == 0;
}

CQrUiToolPanelItem& outermostOf(CQrUiToolPanelItem& item) {
    CQrUiToolPanelItem* outermost = &item;
    while (outermost->m_record->flyout != nullptr)
        outermost = outermost->m_record->flyout;
    return *outermost;
}

/// Raises `GestureError` unless the item can be seen, and returns the window that it stands on.
HWND requirePlace(const CQrUiToolPanelItem& item) {
    const CQrUiToolPanel* const panel = item.m_record->toolPanel;
    requireOnScreen(panel == nullptr ? nullptr : panel->m_hWnd);
    if (item.m_record->rect.Width() <= 0)
        throw GestureError("item \"" + toUtf8(knownId(item)) + "\" has no place on its panel");
    return panel->m_hWnd;
}

bool chooseFromFlyout(CQrUiToolPanelItem& flyout, const CQrUiToolPanelItem& tool) {
    const std::vector<CQrUiToolPanelItem*> tools = offeredTools(flyout);
    const auto found = std::find(tools.begin(), tools.end(), &tool);
    if (found == tools.end())
        return false;
    const HWND panel = requirePlace(flyout);
    const auto place = static_cast<UINT>(found - tools.begin()) + 1;
    Workbench::current().toolkit().menus().answerNext(
        [place](const std::vector<MenuLine>&) { return std::optional<UINT>(place); });
    const CRect& rect = flyout.m_record->rect;
    const bool clicked =
        clickAt(panel, {rect.right - kFlyoutArrowWidth / 2, (rect.top + rect.bottom) / 2});
    Workbench::current().toolkit().menus().answerNext(nullptr);
    return clicked;
}

}  // namespace

bool clickItem(CQrUiToolPanelItem& item) {
    CQrUiToolPanelItem& outermost = outermostOf(item);
    if (!takesClicks(item) || !takesClicks(outermost))
        return false;
    if (&outermost != &item)
        return chooseFromFlyout(outermost, item);
    const HWND panel = requirePlace(item);
    CRect rect = item.m_record->rect;
    if (item.GetType() == kItemFlyout)
        rect.right -= kFlyoutArrowWidth;
    return clickAt(panel, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
}

bool clickIcon(HWND control) {
    requireOnScreen(control);
    const Window& window = *Workbench::current().windows().find(control);
    if (dynamic_cast<const ToolPanelWidget*>(window.widget.get()) != nullptr) {
        const auto& panel = *static_cast<const CQrUiToolPanel*>(window.object);
        for (int index = 0; index < panel.GetToolPanelItemCount(); ++index) {
            CQrUiToolPanelItem& item = *panel.GetToolPanelItem(index);
            if (item.GetType() == kItemButton)
                return clickItem(item);
        }
    }
    return clickAt(control, middleOf(control));
}

bool clickTitle(CQrUiPanel& panel) {
    requireOnScreen(panel.m_hWnd);
    return clickAt(panel.m_hWnd, {middleOf(panel.m_hWnd).x, PanelWidget::kTitleHeight / 2});
}

bool doubleClickImage(CQrUiPanel& panel) {
    requireOnScreen(panel.m_hWnd);
    return doubleClickAt(panel.m_hWnd,
                         {PanelWidget::kImageAreaWidth / 2, PanelWidget::kTitleHeight / 2});
}

}  // namespace workbench::gestures
