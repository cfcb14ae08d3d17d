#include "workbench/desktop/mirror/tree_painter.h"

#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/look/pictures.h"
#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/tree_widget.h"
#include "workbench/windows/window_system.h"

#include <QPainter>
#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kLabelMargin = 4;  // pixels before the text
constexpr int kThumbWidth = 4;   // pixels of what tells how far the tree is scrolled
constexpr int kShortestThumb = 12;

/// Draws one tree once.
class TreePainter {
public:
    TreePainter(QPainter& painter, Stage& stage, const Window& window, const TreeWidget& tree)
        : m_painter(painter),
          m_stage(stage),
          m_window(window),
          m_tree(tree) {}

    void paint() {
        m_painter.fillRect(0, 0, m_window.rect.Width(), m_window.rect.Height(),
                           m_stage.look->field);
        m_painter.setFont(fontOf(m_stage.windows.gdi().findFont(m_window.font)));
        HTREEITEM item = m_tree.firstVisible();
        while (item != nullptr && m_tree.partsOf(item).label.top < m_window.rect.Height()) {
            paintRow(item);
            item = m_tree.nextVisible(item);
        }
        paintThumb();
    }

private:
    bool hasStyle(DWORD style) const { return (m_window.style & style) != 0; }

    void paintRow(HTREEITEM item) {
        const TreeRowParts parts = m_tree.partsOf(item);
        const bool isSelected = item == m_tree.selected();
        const bool hasKeyboard = m_stage.windows.focus() == m_window.handle;
        if (isSelected && (hasKeyboard || hasStyle(TVS_SHOWSELALWAYS)))
            paintSelection(parts, hasKeyboard);
        if (hasStyle(TVS_HASLINES))
            paintLines(item, parts);
        if (parts.button.Width() > 0)
            paintButton(parts.button, m_tree.items().find(item)->isOpen);
        if (const SourcedPicture* const picture = m_tree.pictureOf(item))
            m_painter.drawPixmap(toQt(parts.picture), pixmapOf(picture->picture));
        m_painter.setPen(isSelected && hasKeyboard ? m_stage.look->accentText
                                                   : m_stage.look->fieldText);
        const int left = parts.label.left + kLabelMargin;
        const QRect room(left, parts.label.top, m_window.rect.Width() - left, kTreeRowHeight);
        const QString text = toQt(m_tree.items().find(item)->text);
        m_painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                           m_painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
    }

    void paintSelection(const TreeRowParts& parts, bool hasKeyboard) {
        QRect area = toQt(parts.label);
        if (hasStyle(TVS_FULLROWSELECT)) {
            area.setLeft(0);
            area.setWidth(m_window.rect.Width());
        }
        m_painter.fillRect(area, hasKeyboard ? m_stage.look->accent : m_stage.look->hover);
    }

    /// From the item to what it stands in, and past it to what comes behind at each level above.
    void paintLines(HTREEITEM item, const TreeRowParts& parts) {
        const TreeItems& items = m_tree.items();
        m_painter.setPen(QPen(m_stage.look->line, 1, Qt::DotLine));
        int x =
            (parts.picture.Width() > 0 ? parts.picture.left : parts.label.left) - kTreeIndent / 2;
        if (x < 0)
            return;
        const int middle = parts.label.top + kTreeRowHeight / 2;
        const bool isFirst =
            items.find(item)->parent == nullptr && items.childrenOf(nullptr).front() == item;
        m_painter.drawLine(x, middle, x + kTreeIndent / 2 - 1, middle);
        m_painter.drawLine(x, isFirst ? middle : parts.label.top, x,
                           items.nextSibling(item) == nullptr ? middle : parts.label.bottom);
        for (HTREEITEM above = items.find(item)->parent; above != nullptr && x > 0;
             above = items.find(above)->parent) {
            x -= kTreeIndent;
            if (items.nextSibling(above) != nullptr)
                m_painter.drawLine(x, parts.label.top, x, parts.label.bottom);
        }
    }

    void paintButton(const CRect& room, bool isOpen) {
        constexpr int kBox = 9;
        const QPoint middle = toQt(room).center();
        const QRect box(middle.x() - kBox / 2, middle.y() - kBox / 2, kBox, kBox);
        m_painter.fillRect(box, m_stage.look->field);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(m_stage.look->edge);
        m_painter.drawRect(box.adjusted(0, 0, -1, -1));
        m_painter.setPen(m_stage.look->fieldText);
        m_painter.drawLine(box.left() + 2, middle.y(), box.right() - 2, middle.y());
        if (!isOpen)
            m_painter.drawLine(middle.x(), box.top() + 2, middle.x(), box.bottom() - 2);
    }

    void paintThumb() {
        const auto rows = static_cast<int>(m_tree.items().rows().size());
        const int height = m_window.rect.Height();
        if (rows * kTreeRowHeight <= height)
            return;
        const int above = m_tree.rowOf(m_tree.firstVisible());
        const int length = std::max(kShortestThumb, height * height / (rows * kTreeRowHeight));
        const int hidden = rows - height / kTreeRowHeight;
        m_painter.fillRect(m_window.rect.Width() - kThumbWidth, (height - length) * above / hidden,
                           kThumbWidth, length, m_stage.look->edge);
    }

    QPainter& m_painter;
    Stage& m_stage;
    const Window& m_window;
    const TreeWidget& m_tree;
};

}  // namespace

void paintTree(QPainter& painter, Stage& stage, const Window& window, const TreeWidget& tree) {
    TreePainter(painter, stage, window, tree).paint();
}

}  // namespace workbench::desktop
