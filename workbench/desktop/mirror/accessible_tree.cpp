#include "workbench/desktop/mirror/accessible_tree.h"

#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/open_menu.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/gestures/tree_gestures.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/toolkit/tree_widget.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <utility>

namespace workbench::desktop {

namespace {

/// An item of a tree.
class AccessibleTreeItem final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleTreeItem(const AccessibleTree& tree, HTREEITEM item) : m_tree(tree), m_item(item) {}

    HTREEITEM item() const { return m_item; }

    // QAccessibleInterface:
    bool isValid() const override { return m_tree.isValid() && shown() != nullptr; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(m_tree.object());
    }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        const TreeItem* const item = shown();
        return item == nullptr || kind != QAccessible::Name ? QString() : toQt(item->text);
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override {
        const TreeRowParts parts = m_tree.tree()->partsOf(m_item);
        const QPoint corner = m_tree.mirror().mapToGlobal(QPoint(0, parts.label.top));
        return {corner, QSize(m_tree.mirror().width(), kTreeRowHeight)};
    }
    QAccessible::Role role() const override { return QAccessible::TreeItem; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    // QAccessibleActionInterface:
    QStringList actionNames() const override {
        QStringList names{pressAction()};
        if (const TreeItem* const item = shown(); item != nullptr && !item->children.empty())
            names << toggleAction();
        return names;
    }
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    const TreeItem* shown() const {
        const TreeWidget* const tree = m_tree.tree();
        return tree == nullptr ? nullptr : tree->items().find(m_item);
    }

    const AccessibleTree& m_tree;
    const HTREEITEM m_item;
};

QAccessible::State AccessibleTreeItem::state() const {
    QAccessible::State state;
    const TreeItem* const item = shown();
    state.invalid = item == nullptr;
    if (item == nullptr)
        return state;
    state.selectable = true;
    state.focusable = true;
    state.selected = m_tree.tree()->selected() == m_item;
    state.focused = state.selected && m_tree.mirror().hasFocus();
    state.expandable = !item->children.empty();
    state.expanded = item->isOpen;
    state.collapsed = state.expandable && !item->isOpen;
    return state;
}

void AccessibleTreeItem::doAction(const QString& name) {
    const Stage& stage = m_tree.mirror().stage();
    const HWND window = m_tree.mirror().handle();
    if (name == pressAction())
        stage.pump.act(
            [&stage, window, this] { gestures::clickNode(stage.toolkit, window, m_item); });
    else if (name == toggleAction())
        stage.pump.act([this] { m_tree.tree()->setOpen(m_item, !shown()->isOpen); });
}

}  // namespace

AccessibleTree::~AccessibleTree() {
    for (const QAccessible::Id id : std::as_const(m_items))
        QAccessible::deleteAccessibleInterface(id);
}

TreeWidget* AccessibleTree::tree() const {
    const Window* const window = mirror().host();
    return window == nullptr ? nullptr : dynamic_cast<TreeWidget*>(window->widget.get());
}

QAccessibleInterface* AccessibleTree::interfaceOf(HTREEITEM item) const {
    if (item == nullptr)
        return nullptr;
    const auto known = m_items.constFind(item);
    if (known != m_items.constEnd())
        return QAccessible::accessibleInterface(*known);
    auto* const made = new AccessibleTreeItem(*this, item);
    m_items.insert(item, QAccessible::registerAccessibleInterface(made));
    return made;
}

int AccessibleTree::childCount() const {
    const TreeWidget* const shown = tree();
    if (shown == nullptr)
        return 0;
    const int menus = menuOpenOn(mirror()) == nullptr ? 0 : 1;
    return static_cast<int>(shown->items().rows().size()) + QAccessibleWidget::childCount() + menus;
}

/// The items first, then the editor of a label, then an open menu.
QAccessibleInterface* AccessibleTree::child(int index) const {
    const TreeWidget* const shown = tree();
    if (shown == nullptr || index < 0)
        return nullptr;
    const std::vector<HTREEITEM> rows = shown->items().rows();
    const int inside = index - static_cast<int>(rows.size());
    if (inside < 0)
        return interfaceOf(rows[static_cast<std::size_t>(index)]);
    return inside == QAccessibleWidget::childCount()
               ? QAccessible::queryAccessibleInterface(menuOpenOn(mirror()))
               : QAccessibleWidget::child(inside);
}

int AccessibleTree::indexOfChild(const QAccessibleInterface* child) const {
    for (int index = 0; index < childCount(); ++index) {
        if (this->child(index) == child)
            return index;
    }
    return -1;
}

QAccessibleInterface* AccessibleTree::childAt(int x, int y) const {
    const TreeWidget* const shown = tree();
    const QPoint point = mirror().mapFromGlobal(QPoint(x, y));
    return shown == nullptr ? nullptr : interfaceOf(shown->itemAt(toHost(point)));
}

QAccessibleInterface* AccessibleTree::focusChild() const {
    const TreeWidget* const shown = tree();
    return shown == nullptr || !mirror().hasFocus() ? nullptr : interfaceOf(shown->selected());
}

QAccessible::State AccessibleTree::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    state.focused = mirror().hasFocus() && focusChild() == nullptr;
    return state;
}

}  // namespace workbench::desktop
