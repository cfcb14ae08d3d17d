#include "workbench/desktop/mirror/item_widget.h"

#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/row_layout.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/tool_panel_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <QPainter>
#include <QTimer>

namespace workbench::desktop {

namespace {

constexpr double kDisabledOpacity = 0.35;
constexpr int kFlashMs = 1500;
constexpr int kLettersOfAName = 2;
constexpr UINT kGapStyle = 4;  // of a separator

bool isDrawn(const CQrUiToolPanelItem::Record& record) {
    const bool hasLook = record.type == kItemButton || record.type == kItemFlyout ||
                         record.type == kItemIcon || record.type == kItemSeparator;
    return hasLook && record.rect.Width() > 0 && (record.state & kItemHidden) == 0;
}

/// What a flyout shows is its current tool.
const CQrUiToolPanelItem::Record& shownRecord(const CQrUiToolPanelItem& item) {
    const CQrUiToolPanelItem* shown = &item;
    while (shown->m_record->currentTool != nullptr && shown->m_record->smallImage == nullptr)
        shown = shown->m_record->currentTool;
    return *shown->m_record;
}

void paintPicture(QPainter& painter, Stage& stage, const CQrUiToolPanelItem& item,
                  const QRect& place) {
    const CQrUiToolPanelItem::Record& shown = shownRecord(item);
    const QPixmap picture = stage.pictures.fit(shown.smallImage, shown.largeImage, place.width(),
                                               painter.device()->devicePixelRatioF());
    if (!picture.isNull()) {
        painter.drawPixmap(place.topLeft(), picture);
        return;
    }
    painter.setFont(fontOf(nullptr));
    painter.setPen(stage.look->text);
    painter.drawText(place, Qt::AlignCenter,
                     toQt(shownName(stage.toolkit, item)).left(kLettersOfAName));
}

}  // namespace

ItemWidget::ItemWidget(Stage& stage, HWND toolPanel, int index, QWidget* parent)
    : QWidget(parent),
      m_stage(stage),
      m_toolPanel(toolPanel),
      m_index(index) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

CQrUiToolPanelItem* ItemWidget::item() const {
    const Window* const window = m_stage.windows.find(m_toolPanel);
    const auto* panel = window == nullptr ? nullptr : dynamic_cast<CQrUiToolPanel*>(window->object);
    return panel == nullptr ? nullptr : panel->GetToolPanelItem(m_index);
}

void ItemWidget::refresh() {
    const CQrUiToolPanelItem* const shown = item();
    if (shown == nullptr || !isDrawn(*shown->m_record)) {
        hide();
        return;
    }
    setGeometry(toQt(shown->m_record->rect));
    show();
    update();
}

bool ItemWidget::isMarked() const {
    const Window* const window = m_stage.windows.find(m_toolPanel);
    const auto* widget =
        window == nullptr ? nullptr : dynamic_cast<const ToolPanelWidget*>(window->widget.get());
    return widget != nullptr && widget->marked(*window) == m_index;
}

void ItemWidget::setHovered(bool hovered) {
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    update();
}

void ItemWidget::flash() {
    m_flashing = true;
    update();
    QTimer::singleShot(kFlashMs, this, [this] {
        m_flashing = false;
        update();
    });
}

void ItemWidget::paintEvent(QPaintEvent* /*event*/) {
    const CQrUiToolPanelItem* const shown = item();
    if (shown == nullptr)
        return;
    QPainter painter(this);
    const CQrUiToolPanelItem::Record& record = *shown->m_record;
    if (record.type == kItemSeparator && (record.style & kGapStyle) != 0)
        return;
    if (record.type == kItemSeparator) {
        painter.setPen(m_stage.look->line);
        painter.drawLine(width() / 2, 2, width() / 2, height() - 3);
        return;
    }
    const bool disabled =
        (record.state & kItemDisabled) != 0 || !m_stage.windows.takesInput(m_toolPanel);
    const bool checked = (record.state & kItemChecked) != 0;
    if (checked || m_flashing || (m_hovered && !disabled && record.type != kItemIcon)) {
        painter.setPen(checked || m_flashing ? m_stage.look->accent : m_stage.look->line);
        painter.setBrush(m_flashing ? m_stage.look->balloon : m_stage.look->hover);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    painter.setOpacity(disabled ? kDisabledOpacity : 1.0);
    const int arrow = record.type == kItemFlyout ? kFlyoutArrowWidth : 0;
    const int size = std::min(m_stage.toolkit.iconSize(), height());
    paintPicture(painter, m_stage, *shown,
                 {(width() - arrow - size) / 2, (height() - size) / 2, size, size});
    if (arrow > 0)
        paintArrowDown(painter, {width() - arrow / 2.0, height() / 2.0}, 3, m_stage.look->text);
    painter.setOpacity(1.0);
    if (isMarked())
        paintKeyboardFrame(painter, rect(), m_stage.look->accent);
}

}  // namespace workbench::desktop
