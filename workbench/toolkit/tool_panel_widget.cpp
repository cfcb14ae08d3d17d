#include "workbench/toolkit/tool_panel_widget.h"

#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/toolkit/flyout_menu.h"
#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/key_road.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/tool_panel_layout.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr UINT kIndentStyle = 2;
constexpr int kImageIndent = 24;  // pixels, the panel's image and its border

CQrUiToolPanel& panelOf(const Window& window) {
    return *static_cast<CQrUiToolPanel*>(window.object);
}

template <class Type>
bool standsIn(const WindowSystem& windows, const Window& window) {
    const Window* const parent = windows.find(window.parent);
    return parent != nullptr && dynamic_cast<const Type*>(parent->widget.get()) != nullptr;
}

CQrUiToolPanelItem* itemAt(const CQrUiToolPanel& panel, CPoint point) {
    for (int index = 0; index < panel.GetToolPanelItemCount(); ++index) {
        CQrUiToolPanelItem* const item = panel.GetToolPanelItem(index);
        const CQrUiToolPanelItem::Record& record = *item->m_record;
        if ((record.state & kItemHidden) == 0 && record.rect.PtInRect(point))
            return item;
    }
    return nullptr;
}

bool isTool(const CQrUiToolPanel& panel, int index) {
    if (index < 0 || index >= panel.GetToolPanelItemCount())
        return false;
    const CQrUiToolPanelItem& item = *panel.GetToolPanelItem(index);
    const int type = item.GetType();
    return (type == kItemButton || type == kItemFlyout) && (item.GetState() & kItemHidden) == 0;
}

/// The nearest tool from an index on, in steps; -1 for none.
int toolFrom(const CQrUiToolPanel& panel, int index, int step) {
    const int count = panel.GetToolPanelItemCount();
    while (index >= 0 && index < count && !isTool(panel, index))
        index += step;
    return isTool(panel, index) ? index : -1;
}

}  // namespace

WindowSystem& ToolPanelWidget::windows() const {
    return m_toolkit.windows();
}

RowLayout ToolPanelWidget::rows(const CQrUiToolPanel& panel, int width) const {
    RowMetrics metrics;
    metrics.iconSize = m_toolkit.iconSize();
    metrics.indent = indentOf(panel);
    return layoutRows(
        rowItemsOf(panel), width, metrics, [this, &panel](std::size_t index, int controlWidth) {
            return controlHeight(windows(), *panel.GetToolPanelItem(static_cast<int>(index)),
                                 controlWidth);
        });
}

int ToolPanelWidget::indentOf(const CQrUiToolPanel& panel) const {
    const Window* const window = windows().find(panel.m_hWnd);
    // A custom control stands to the right of the panel's image already.
    const bool isControl = window != nullptr && standsIn<ToolPanelWidget>(windows(), *window);
    return (m_toolkitStyle & kIndentStyle) != 0 && !isControl ? kImageIndent : 0;
}

void ToolPanelWidget::layout(Window& window) {
    const Turn turn;
    CQrUiToolPanel& panel = panelOf(window);
    const HWND handle = window.handle;
    if (!askControls(m_toolkit, panel))
        return;
    const RowLayout places = rows(panel, window.rect.Width());
    m_hasTools = standsIn<PanelWidget>(windows(), window) && toolFrom(panel, 0, 1) >= 0;
    for (std::size_t index = 0; index < places.items.size(); ++index) {
        // Placing a control may run its code, which may change the panel or end it.
        if (windows().find(handle) == nullptr)
            return;
        CQrUiToolPanelItem* const item = panel.GetToolPanelItem(static_cast<int>(index));
        if (item == nullptr)
            return;
        placeItem(m_toolkit, *item, places.items[index]);
    }
    if (windows().find(handle) != nullptr && standsIn<PanelWidget>(windows(), window))
        windows().place(handle, {0, 0, window.rect.Width(), places.height},
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool ToolPanelWidget::handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                             LRESULT& answer) {
    switch (message) {
    case WM_SIZE:
        resize(window);
        return true;
    case kLeftButtonDown:
        press(window, unpackPoint(lParam));
        return true;
    case kLeftButtonUp:
        release(window, static_cast<UINT>(wParam), unpackPoint(lParam));
        return true;
    case WM_KEYDOWN:
        if (!key(window, wParam))
            passKeyOn(m_toolkit, wParam, lParam);
        return true;
    case kContextMenuMessage:
    case kMouseWheel:
        passOn(window, message, wParam, lParam, answer);
        return true;
    case WM_QRUI_THEME_CHANGED:
        changeTheme(window, wParam, lParam);
        return true;
    default:
        return false;
    }
}

void ToolPanelWidget::resize(const Window& window) {
    CQrUiToolPanel& panel = panelOf(window);
    if (standsIn<ToolPanelWidget>(windows(), window) &&
        !m_toolkit.toolPanels().of(&panel).beingPlaced)
        panel.UpdateLayout(1);
}

/// Leaves a message to the panel that this one stands on.
void ToolPanelWidget::passOn(const Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                             LRESULT& answer) {
    answer = windows().send(window.parent, message, wParam, lParam);
}

std::string ToolPanelWidget::describe(const Window& window) const {
    const int count = panelOf(window).GetToolPanelItemCount();
    return std::to_string(count) + (count == 1 ? " item" : " items");
}

int ToolPanelWidget::naturalHeight(const Window& window, int width) const {
    return rows(panelOf(window), width).height;
}

std::wstring ToolPanelWidget::tipAt(const Window& window, CPoint point) const {
    const CQrUiToolPanelItem* const item = itemAt(panelOf(window), point);
    return item == nullptr ? std::wstring() : shownName(m_toolkit, *item);
}

void ToolPanelWidget::press(const Window& window, CPoint point) {
    m_pressed = itemAt(panelOf(window), point);
    m_focusBefore = windows().focus();
    m_isPressed = true;
}

void ToolPanelWidget::release(Window& window, UINT flags, CPoint point) {
    CQrUiToolPanelItem* const item = itemAt(panelOf(window), point);
    if (!m_isPressed || item != m_pressed)
        return;
    m_isPressed = false;
    const HWND handle = window.handle;
    const HWND before = m_focusBefore;
    const bool isControl = standsIn<ToolPanelWidget>(windows(), window);
    const bool takesClick =
        item == nullptr || (item->GetState() & (kItemDisabled | kItemHidden)) == 0;
    if (isControl && takesClick)
        clickIcon(window, flags, point);
    else if (!isControl && takesClick && item != nullptr)
        click(window, *item, point);
    if (isControl)
        giveFocusBackFromControl(m_toolkit, handle, before);
    else
        giveFocusBack(m_toolkit, handle, before);
}

/// A click on a custom control beside its parts is one on its icon, if the control says that it has
/// one.
void ToolPanelWidget::clickIcon(const Window& window, UINT flags, CPoint point) {
    const HWND handle = window.handle;
    CQrUiToolPanel& panel = panelOf(window);
    const bool hasIcon = windows().send(handle, WM_QRUI_HAS_ICON, 0, 0) != 0;
    if (hasIcon && windows().find(handle) != nullptr)
        panel.OnLButtonClicked(flags, point);
}

void ToolPanelWidget::click(const Window& window, CQrUiToolPanelItem& item, CPoint point) {
    const bool onArrow =
        item.GetType() == kItemFlyout && point.x >= item.m_record->rect.right - kFlyoutArrowWidth;
    if (onArrow && !openFlyout(m_toolkit, item))
        return;
    windows().send(window.parent, WM_QRUI_ITEM_CLICKED, 0, reinterpret_cast<LPARAM>(&item));
}

int ToolPanelWidget::marked(const Window& window) const {
    if (!m_hasTools || windows().focus() != window.handle)
        return -1;
    const CQrUiToolPanel& panel = panelOf(window);
    return isTool(panel, m_marked) ? m_marked : toolFrom(panel, 0, 1);
}

void ToolPanelWidget::markTool(const Window& window, int index) {
    m_marked = index;
    windows().invalidate(window.handle);
}

/// Marks the next tool in steps, beginning with the one beside the marked tool.
void ToolPanelWidget::mark(const Window& window, int step) {
    const int next = toolFrom(panelOf(window), marked(window) + step, step);
    if (next >= 0)
        m_marked = next;
    windows().invalidate(window.handle);
}

/// False for a key that means nothing here.
bool ToolPanelWidget::key(Window& window, WPARAM key) {
    const int index = marked(window);
    if (index < 0)
        return false;
    const CQrUiToolPanel& panel = panelOf(window);
    switch (key) {
    case kKeyLeft:
    case kKeyUp:
        mark(window, -1);
        return true;
    case kKeyDown:
        if (panel.GetToolPanelItem(index)->GetType() == kItemFlyout)
            clickMarked(window, true);
        else
            mark(window, 1);
        return true;
    case kKeyRight:
        mark(window, 1);
        return true;
    case kKeyHome:
        m_marked = toolFrom(panel, 0, 1);
        windows().invalidate(window.handle);
        return true;
    case kKeyEnd:
        m_marked = toolFrom(panel, panel.GetToolPanelItemCount() - 1, -1);
        windows().invalidate(window.handle);
        return true;
    case VK_RETURN:
        clickMarked(window, false);
        return true;
    default:
        return false;
    }
}

/// As by the mouse: on the arrow of a flyout, or on the tool itself.
void ToolPanelWidget::clickMarked(Window& window, bool onArrow) {
    const CRect& place = panelOf(window).GetToolPanelItem(marked(window))->m_record->rect;
    const CPoint point{onArrow ? place.right - 1 : place.left + 1, place.top + 1};
    press(window, point);
    release(window, 0, point);
}

/// Hands the change on to the controls and lays out anew, since fonts and hidden items may differ.
void ToolPanelWidget::changeTheme(Window& window, WPARAM wParam, LPARAM lParam) {
    const HWND handle = window.handle;
    CQrUiToolPanel& panel = panelOf(window);
    const std::vector<HWND> children = window.children;
    for (const HWND child : children)
        windows().send(child, WM_QRUI_THEME_CHANGED, wParam, lParam);
    if (windows().find(handle) != nullptr)
        panel.UpdateLayout(1);
}

}  // namespace workbench
