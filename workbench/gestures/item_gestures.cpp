#include "workbench/gestures/item_gestures.h"

#include "workbench/base/text.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/mouse_gestures.h"
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
HWND requirePlace(Toolkit& toolkit, const CQrUiToolPanelItem& item) {
    const CQrUiToolPanel* const panel = item.m_record->toolPanel;
    requireOnScreen(toolkit, panel == nullptr ? nullptr : panel->m_hWnd);
    if (item.m_record->rect.Width() <= 0)
        throw GestureError("item \"" + toUtf8(knownId(item)) + "\" has no place on its panel");
    return panel->m_hWnd;
}

bool chooseFromFlyout(Toolkit& toolkit, CQrUiToolPanelItem& flyout,
                      const CQrUiToolPanelItem& tool) {
    const std::vector<CQrUiToolPanelItem*> tools = offeredTools(toolkit, flyout);
    const auto found = std::find(tools.begin(), tools.end(), &tool);
    if (found == tools.end())
        return false;
    const HWND panel = requirePlace(toolkit, flyout);
    const auto place = static_cast<UINT>(found - tools.begin()) + 1;
    toolkit.menus().answerNext(
        [place](const std::vector<MenuLine>&) { return std::optional<UINT>(place); });
    const CRect& rect = flyout.m_record->rect;
    const bool clicked =
        clickAt(toolkit, panel, {rect.right - kFlyoutArrowWidth / 2, (rect.top + rect.bottom) / 2});
    toolkit.menus().answerNext(nullptr);
    return clicked;
}

}  // namespace

bool clickItem(Toolkit& toolkit, CQrUiToolPanelItem& item) {
    CQrUiToolPanelItem& outermost = outermostOf(item);
    if (!takesClicks(item) || !takesClicks(outermost))
        return false;
    if (&outermost != &item)
        return chooseFromFlyout(toolkit, outermost, item);
    const HWND panel = requirePlace(toolkit, item);
    CRect rect = item.m_record->rect;
    if (item.GetType() == kItemFlyout)
        rect.right -= kFlyoutArrowWidth;
    return clickAt(toolkit, panel, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
}

bool clickIcon(Toolkit& toolkit, HWND control) {
    requireOnScreen(toolkit, control);
    const Window& window = *toolkit.windows().find(control);
    if (dynamic_cast<const ToolPanelWidget*>(window.widget.get()) != nullptr) {
        const auto& panel = *static_cast<const CQrUiToolPanel*>(window.object);
        for (int index = 0; index < panel.GetToolPanelItemCount(); ++index) {
            CQrUiToolPanelItem& item = *panel.GetToolPanelItem(index);
            if (item.GetType() == kItemButton)
                return clickItem(toolkit, item);
        }
    }
    return clickAt(toolkit, control, middleOf(toolkit, control));
}

bool clickTitle(Toolkit& toolkit, CQrUiPanel& panel) {
    requireOnScreen(toolkit, panel.m_hWnd);
    return clickAt(toolkit, panel.m_hWnd,
                   {middleOf(toolkit, panel.m_hWnd).x, PanelWidget::kTitleHeight / 2});
}

bool doubleClickImage(Toolkit& toolkit, CQrUiPanel& panel) {
    requireOnScreen(toolkit, panel.m_hWnd);
    return doubleClickAt(toolkit, panel.m_hWnd,
                         {PanelWidget::kImageAreaWidth / 2, PanelWidget::kTitleHeight / 2});
}

}  // namespace workbench::gestures
