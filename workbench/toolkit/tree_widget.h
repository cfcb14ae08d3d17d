#pragma once

#include "workbench/toolkit/label_editor.h"
#include "workbench/toolkit/tree_items.h"
#include "workbench/toolkit/tree_layout.h"
#include "workbench/windows/image_list.h"
#include "workbench/windows/window.h"

#include <hostapi/window/tree_ctrl.h>

#include <memory>
#include <string>
#include <vector>

namespace workbench {

class Toolkit;

/// A tree of items. A click on an item's button opens or closes it, one elsewhere in its row selects
/// it, two on its label open or close it. Up, Down, Home, End, the page keys and a typed first letter
/// move the selection; Right opens and goes to the first child, Left closes and goes to the parent; F2
/// edits the label. The wheel scrolls.
class TreeWidget final : public Widget {
public:
    explicit TreeWidget(Toolkit& toolkit) : m_toolkit(toolkit) {}
    TreeWidget(const TreeWidget&) = delete;
    TreeWidget& operator=(const TreeWidget&) = delete;

    const TreeItems& items() const { return m_items; }
    HTREEITEM insert(TreeItem item, HTREEITEM behind);
    bool remove(HTREEITEM item);
    void clear();
    bool sortChildren(HTREEITEM parent, const TreeItems::IsBefore& isBefore);
    /// Opens or closes an item. False if it has no children or is stale.
    bool setOpen(HTREEITEM item, bool open);

    /// The selected item; null for none.
    HTREEITEM selected() const { return m_selected; }
    /// Selects an item, null for none, and scrolls it into view. False for a stale one.
    bool select(HTREEITEM item);
    /// Opens what is above an item and scrolls it into view. False for a stale one.
    bool ensureVisible(HTREEITEM item);

    /// The list of pictures; null for none.
    HIMAGELIST images() const { return m_images; }
    void setImages(HIMAGELIST images);
    /// The picture that an item shows now; null for none.
    const SourcedPicture* pictureOf(HTREEITEM item) const;

    /// The item at the top of the window, null for none, and the one that shows below another.
    HTREEITEM firstVisible() const;
    HTREEITEM nextVisible(HTREEITEM item) const;
    /// Where the parts of an item's row are; none if it doesn't show. Rows beyond the edges of the
    /// window have places too.
    TreeRowParts partsOf(HTREEITEM item) const;
    /// The row that an item shows in, from 0 at the top of the tree; -1 for none.
    int rowOf(HTREEITEM item) const;
    /// The item in whose row a point is; null for none.
    HTREEITEM itemAt(CPoint point) const;

    /// Lets the user edit a label. The editor; null if the tree's style or the item doesn't allow it.
    CWnd* editLabel(HTREEITEM item);
    /// The item whose label is edited; null for none.
    HTREEITEM edited() const { return m_edited; }

    // Widget:
    void stand(HWND window) override { m_window = window; }
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    bool takesTab() const override { return true; }
    std::string describe(const Window& window) const override;

private:
    bool hasStyle(DWORD style) const;
    int rowsInView() const;
    void scrollTo(int row);
    void changed();
    void noteCount(std::size_t before);
    void dropMissing();
    void press(CPoint point);
    void toggle(HTREEITEM item);
    bool key(WPARAM key);
    bool moveBy(int rows);
    void goToRow(int row);
    void goLeft();
    void goRight();
    void goToLetter(wchar_t letter);
    void endEdit(LabelEditor::End end);
    bool askToTake(HTREEITEM item, const wchar_t* text);

    Toolkit& m_toolkit;
    HWND m_window = nullptr;
    TreeItems m_items;
    HTREEITEM m_selected = nullptr;
    HIMAGELIST m_images = nullptr;  // not owned
    int m_top = 0;                  // the row at the top of the window
    HTREEITEM m_edited = nullptr;
    std::shared_ptr<LabelEditor> m_editor;  // null: no label is edited
};

}  // namespace workbench
