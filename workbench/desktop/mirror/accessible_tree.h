#pragma once

#include "workbench/desktop/mirror/mirror_widget.h"

#include <hostapi/window/tree_ctrl.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>

namespace workbench {
class TreeWidget;
}

namespace workbench::desktop {

/// Tells assistive programs of a mirrored tree: the items that show, one below the other, with names,
/// levels and whether they are selected or open. An item can be selected, opened and closed.
class AccessibleTree final : public QAccessibleWidget {
public:
    explicit AccessibleTree(MirrorWidget& mirror) : QAccessibleWidget(&mirror, QAccessible::Tree) {}
    ~AccessibleTree() override;

    MirrorWidget& mirror() const { return *static_cast<MirrorWidget*>(widget()); }
    /// The tree behind it; null once it has gone.
    TreeWidget* tree() const;

    // QAccessibleWidget:
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessible::State state() const override;

private:
    QAccessibleInterface* interfaceOf(HTREEITEM item) const;

    mutable QHash<HTREEITEM, QAccessible::Id> m_items;  // of those that were asked for
};

}  // namespace workbench::desktop
