#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/dropdowns.h"
#include "workbench/toolkit/tree_widget.h"

#include <hostapi/window/tree_ctrl.h>

#include <memory>
#include <utility>

using workbench::HostCall;
using workbench::TreeItem;
using workbench::TreePart;
using workbench::TreeWidget;
using workbench::supply::windows;

namespace {

TreeWidget* widgetOf(const CWnd& tree) {
    return windows().widgetOf<TreeWidget>(&tree);
}

/// A place before or behind all items as the items know it.
HTREEITEM placeOf(HTREEITEM item) {
    return item == TVI_ROOT || item == TVI_LAST ? nullptr : item;
}

const TreeItem* itemOf(const CWnd& tree, HTREEITEM item) {
    const TreeWidget* const widget = widgetOf(tree);
    return widget == nullptr ? nullptr : widget->items().find(item);
}

/// The text of an item, as the journal shows it.
VxString shown(const CWnd& tree, HTREEITEM item) {
    const TreeItem* const found = itemOf(tree, item);
    return found == nullptr ? VxString() : found->text;
}

UINT numberOf(TreePart part) {
    constexpr UINT kOnIndent = 0x0008;
    constexpr UINT kOnButton = 0x0010;
    constexpr UINT kOnRight = 0x0020;
    switch (part) {
    case TreePart::Picture:
        return TVHT_ONITEMICON;
    case TreePart::Label:
        return TVHT_ONITEMLABEL;
    case TreePart::Indent:
        return kOnIndent;
    case TreePart::Button:
        return kOnButton;
    case TreePart::Right:
        break;
    }
    return kOnRight;
}

/// The number of a place outside of the client area, or beside all items in it.
UINT numberBeside(CPoint point, const CRect& client) {
    constexpr UINT kNowhere = 0x0001;
    constexpr UINT kAbove = 0x0100;
    constexpr UINT kBelow = 0x0200;
    constexpr UINT kToRight = 0x0400;
    UINT where = 0;
    if (point.x < client.left)
        where |= TVHT_TOLEFT;
    else if (point.x >= client.right)
        where |= kToRight;
    if (point.y < client.top)
        where |= kAbove;
    else if (point.y >= client.bottom)
        where |= kBelow;
    return where == 0 ? kNowhere : where;
}

}  // namespace

BOOL CTreeCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    HostCall call("CTreeCtrl::Create", {style, rect.Width(), rect.Height(), parent, id});
    if (call.failed() || parent == nullptr)
        return call.returns(0);
    using namespace workbench::supply;
    auto creation = creationOf("CTreeCtrl", style, rect, parent, id);
    creation.name = workbench::nameOfDropdownPart(windows(), creation.parent, "tree");
    const bool made =
        createChild(*this, std::move(creation), std::make_unique<TreeWidget>(toolkit()));
    return call.returns(made ? 1 : 0);
}

HIMAGELIST CTreeCtrl::SetImageList(CImageList* list, int kind) {
    HostCall call("CTreeCtrl::SetImageList", {list, kind});
    TreeWidget* const tree = widgetOf(*this);
    if (call.failed() || tree == nullptr || kind != TVSIL_NORMAL)
        return nullptr;
    const HIMAGELIST before = tree->images();
    tree->setImages(list == nullptr ? nullptr : list->m_hImageList);
    return before;
}

HTREEITEM CTreeCtrl::InsertItem(const wchar_t* text, int image, int selectedImage, HTREEITEM parent,
                                HTREEITEM insertAfter) {
    HostCall call("CTreeCtrl::InsertItem", {text, image, selectedImage, shown(*this, parent)});
    TreeWidget* const tree = widgetOf(*this);
    if (call.failed() || tree == nullptr)
        return call.returns<HTREEITEM>(nullptr);
    TreeItem item;
    item.text = text == nullptr ? VxString() : VxString(text);
    item.image = image;
    item.selectedImage = selectedImage;
    item.parent = placeOf(parent);
    return call.returns(tree->insert(std::move(item), placeOf(insertAfter)));
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM item) {
    const VxString text = shown(*this, item);
    HostCall call("CTreeCtrl::DeleteItem", {text});
    TreeWidget* const tree = widgetOf(*this);
    if (call.failed() || tree == nullptr)
        return call.returns(0);
    return call.returns(tree->remove(item) ? 1 : 0);
}

BOOL CTreeCtrl::DeleteAllItems() {
    HostCall call("CTreeCtrl::DeleteAllItems");
    TreeWidget* const tree = widgetOf(*this);
    if (call.failed() || tree == nullptr)
        return call.returns(0);
    tree->clear();
    return call.returns(1);
}

BOOL CTreeCtrl::SortChildren(HTREEITEM parent) {
    HostCall call("CTreeCtrl::SortChildren", {shown(*this, parent)});
    TreeWidget* const tree = widgetOf(*this);
    if (call.failed() || tree == nullptr)
        return call.returns(0);
    const bool sorted =
        tree->sortChildren(placeOf(parent), [](const TreeItem& left, const TreeItem& right) {
            return CollateNoCase(left.text, right.text) < 0;
        });
    return call.returns(sorted ? 1 : 0);
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code) {
    const VxString text = shown(*this, item);
    HostCall call("CTreeCtrl::Expand", {text, code});
    TreeWidget* const tree = widgetOf(*this);
    if (call.failed() || tree == nullptr || code != TVE_EXPAND)
        return call.returns(0);
    return call.returns(tree->setOpen(item, true) ? 1 : 0);
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item) {
    const VxString text = shown(*this, item);
    HostCall call("CTreeCtrl::SelectItem", {text});
    TreeWidget* const tree = widgetOf(*this);
    if (call.failed() || tree == nullptr)
        return call.returns(0);
    return call.returns(tree->select(item) ? 1 : 0);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM item) {
    const VxString text = shown(*this, item);
    HostCall call("CTreeCtrl::EnsureVisible", {text});
    TreeWidget* const tree = widgetOf(*this);
    if (call.failed() || tree == nullptr)
        return call.returns(0);
    return call.returns(tree->ensureVisible(item) ? 1 : 0);
}

CWnd* CTreeCtrl::EditLabel(HTREEITEM item) {
    const VxString text = shown(*this, item);
    HostCall call("CTreeCtrl::EditLabel", {text});
    TreeWidget* const tree = widgetOf(*this);
    if (call.failed() || tree == nullptr)
        return call.returns<CWnd*>(nullptr);
    return call.returns(tree->editLabel(item));
}

HTREEITEM CTreeCtrl::GetRootItem() const {
    return GetChildItem(TVI_ROOT);
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const {
    const TreeWidget* const tree = widgetOf(*this);
    if (tree == nullptr)
        return nullptr;
    const auto& children = tree->items().childrenOf(placeOf(item));
    return children.empty() ? nullptr : children.front();
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const {
    const TreeWidget* const tree = widgetOf(*this);
    return tree == nullptr ? nullptr : tree->items().nextSibling(item);
}

HTREEITEM CTreeCtrl::GetSelectedItem() const {
    const TreeWidget* const tree = widgetOf(*this);
    return tree == nullptr ? nullptr : tree->selected();
}

HTREEITEM CTreeCtrl::GetFirstVisibleItem() const {
    const TreeWidget* const tree = widgetOf(*this);
    return tree == nullptr ? nullptr : tree->firstVisible();
}

HTREEITEM CTreeCtrl::GetNextVisibleItem(HTREEITEM item) const {
    const TreeWidget* const tree = widgetOf(*this);
    return tree == nullptr ? nullptr : tree->nextVisible(item);
}

VxString CTreeCtrl::GetItemText(HTREEITEM item) const {
    return shown(*this, item);
}

int CTreeCtrl::GetItemHeight() const {
    return workbench::kTreeRowHeight;
}

HTREEITEM CTreeCtrl::HitTest(CPoint point, UINT* where) const {
    const TreeWidget* const tree = widgetOf(*this);
    const CRect client = GetClientRect();
    const bool isInside = tree != nullptr && client.PtInRect(point);
    const HTREEITEM item = isInside ? tree->itemAt(point) : nullptr;
    if (where != nullptr)
        *where = item == nullptr ? numberBeside(point, client)
                                 : numberOf(workbench::partAt(tree->partsOf(item), point));
    return item;
}
