#include "workbench/gestures/tree_gestures.h"

#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>

namespace workbench::gestures {

namespace {

CPoint middle(const CRect& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

int rowOf(const TreeItems& items, HTREEITEM node) {
    const std::vector<HTREEITEM> rows = items.rows();
    return static_cast<int>(std::find(rows.begin(), rows.end(), node) - rows.begin());
}

/// Selects an item that shows by the arrow keys: a click might do more.
void goToNode(Toolkit& toolkit, const TreeWidget& widget, HTREEITEM node) {
    if (widget.selected() == nullptr)
        pressKey(toolkit, "home");
    const TreeItems& items = widget.items();
    const int steps = rowOf(items, node) - rowOf(items, widget.selected());
    for (int step = 0; step < std::abs(steps); ++step)
        pressKey(toolkit, steps > 0 ? "down" : "up");
}

}  // namespace

TreeWidget& treeOf(Toolkit& toolkit, HWND tree) {
    Window* const window = toolkit.windows().find(tree);
    auto* const widget =
        window == nullptr ? nullptr : dynamic_cast<TreeWidget*>(window->widget.get());
    if (widget == nullptr)
        throw GestureError("there is no tree on show");
    return *widget;
}

HTREEITEM findNode(const TreeItems& items, std::wstring_view path, HTREEITEM below) {
    const std::vector<HTREEITEM>& nodes = items.childrenOf(below);
    for (const HTREEITEM node : nodes) {
        if (items.find(node)->text == path)
            return node;
    }
    for (const HTREEITEM node : nodes) {
        const std::wstring& label = items.find(node)->text;
        if (!path.starts_with(label + L"/"))
            continue;
        if (const HTREEITEM found = findNode(items, path.substr(label.size() + 1), node))
            return found;
    }
    return nullptr;
}

void showNode(Toolkit& toolkit, HWND tree, HTREEITEM node) {
    requireOnScreen(toolkit, tree);
    TreeWidget& widget = treeOf(toolkit, tree);
    const TreeItem* const item = widget.items().find(node);
    if (item == nullptr)
        throw GestureError("the node is gone");
    const HTREEITEM parent = item->parent;
    if (parent != nullptr) {
        showNode(toolkit, tree, parent);
        if (!widget.items().find(parent)->isOpen)
            clickAt(toolkit, tree, middle(widget.partsOf(parent).button));
    }
    // As by the wheel.
    widget.ensureVisible(node);
}

CPoint labelOf(Toolkit& toolkit, HWND tree, HTREEITEM node) {
    showNode(toolkit, tree, node);
    return middle(treeOf(toolkit, tree).partsOf(node).label);
}

bool clickNode(Toolkit& toolkit, HWND tree, HTREEITEM node) {
    return clickAt(toolkit, tree, labelOf(toolkit, tree, node));
}

namespace {

void beginRename(Toolkit& toolkit, HWND tree, HTREEITEM node) {
    showNode(toolkit, tree, node);
    if (toolkit.windows().focus() != tree)
        throw GestureError("the tree hasn't got the keyboard");
    const TreeWidget& widget = treeOf(toolkit, tree);
    goToNode(toolkit, widget, node);
    pressKey(toolkit, "f2");
    if (widget.edited() != node)
        throw GestureError("the label can't be edited");
}

}  // namespace

void renameNode(Toolkit& toolkit, HWND tree, HTREEITEM node, std::wstring_view text) {
    if (treeOf(toolkit, tree).edited() != node)
        beginRename(toolkit, tree, node);
    replaceText(toolkit, text);
    pressKey(toolkit, "enter");
}

}  // namespace workbench::gestures
