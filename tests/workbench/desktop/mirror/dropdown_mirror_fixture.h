#pragma once

#include "tests/workbench/desktop/mirror/mirror_fixture.h"
#include "tests/workbench/toolkit/dropdown_fixture.h"

#include <QImage>

namespace workbench::desktop {

/// A mirrored control "FilterControl" that drops a tree down.
class DropdownMirrorTest : public MirrorTest {
protected:
    DropdownMirrorTest() {
        CFrameWnd& frame = m_stage.toolkit.frame().frame();
        m_combo.Create(WS_CHILD | WS_VISIBLE, {400, 100, 560, 400}, &frame, 7);
        windows().setName(m_combo.m_hWnd, "FilterControl");
        QApplication::setActiveWindow(&m_top);
        rest();
    }

    MirrorWidget& field() { return *widget(m_combo.m_hWnd); }
    /// Clicks the field, which opens the dropdown or closes it.
    void clickField() {
        click(field());
        rest();
    }
    MirrorWidget* popup() { return widget(m_combo.dropdown->m_hWnd); }
    MirrorWidget& tree() { return *widget(m_combo.dropdown->tree.m_hWnd); }
    MirrorWidget& check() { return *widget(m_combo.dropdown->check.m_hWnd); }
    TreeWidget& treeWidget() { return *windows().widgetOf<TreeWidget>(&m_combo.dropdown->tree); }
    std::wstring selected() {
        const TreeItem* const item = treeWidget().items().find(treeWidget().selected());
        return item == nullptr ? std::wstring() : item->text;
    }
    static QPoint middle(const CRect& rect) {
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }
    QPoint labelOf(HTREEITEM item) { return middle(treeWidget().partsOf(item).label); }
    /// What a key does to the widget that has the keyboard.
    void press(int key, const QString& text = {}) {
        pressKey(*widget(windows().focus()), key, text);
        rest();
    }

    DropdownCombo m_combo;
};

}  // namespace workbench::desktop
