#include "workbench/desktop/mirror/window_painter.h"

#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/bar_parts.h"
#include "workbench/desktop/mirror/control_painter.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/floating_frame.h"
#include "workbench/toolkit/link_widget.h"
#include "workbench/toolkit/palette_set_widget.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <QPainter>

namespace workbench::desktop {

namespace {

constexpr int kPanelImageSize = 16;  // logical pixels
constexpr int kTextGap = 4;

void fill(QPainter& painter, const Window& window, const QColor& colour) {
    painter.fillRect(0, 0, window.rect.Width(), window.rect.Height(), colour);
}

/// With an ellipsis where there is not room for all of the text.
void drawShortened(QPainter& painter, const QRect& room, const QString& text) {
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
}

void paintCaption(QPainter& painter, const Stage& stage, const QRect& strip, const QString& title) {
    painter.fillRect(strip, stage.look->title);
    painter.setPen(stage.look->text);
    painter.setFont(fontOf(nullptr));
    drawShortened(painter, strip.adjusted(kTextGap, 0, -kTextGap, 0), title);
}

void paintBar(QPainter& painter, Stage& stage, Window& window) {
    const auto& set = *static_cast<CQrUiPaletteSet*>(window.object);
    const BarPlace& place = stage.toolkit.paletteSets().of(&set).place;
    fill(painter, window, stage.look->frame);
    if (place.floating)
        return;
    const BarParts parts = partsOfDockedBar(window.rect.Width());
    const bool isStrip = place.anchored && window.rect.Width() < parts.smallestFull;
    paintCaption(painter, stage, {0, 0, window.rect.Width(), PaletteSetWidget::kGripHeight}, {});
    if (!isStrip)
        drawShortened(painter, parts.grip.adjusted(kTextGap, 0, 0, 0), toQt(window.text));
    if (isStrip) {
        painter.save();
        painter.translate(window.rect.Width() / 2.0, PaletteSetWidget::kGripHeight + kTextGap);
        painter.rotate(90);
        painter.drawText(QPointF(0, painter.fontMetrics().ascent() / 2.0 - 1), toQt(window.text));
        painter.restore();
        return;
    }
    paintArrowRight(painter, QRectF(parts.anchor).center(), 3, stage.look->text);
    paintCross(painter, QRectF(parts.close).center(), 3, stage.look->text);
}

void paintFloatingFrame(QPainter& painter, Stage& stage, Window& window, const QString& title) {
    fill(painter, window, stage.look->title);
    const FloatingParts parts = partsOfFloatingFrame(window.rect.Width(), window.rect.Height());
    paintCaption(painter, stage, parts.caption, title);
    paintCross(painter, QRectF(parts.close).center(), 4, stage.look->text);
    painter.setPen(stage.look->line);
    painter.drawRect(0, 0, window.rect.Width() - 1, window.rect.Height() - 1);
}

void paintPanel(QPainter& painter, Stage& stage, Window& window) {
    const auto* panel = static_cast<CQrUiPanel*>(window.object);
    const PanelState& state = stage.toolkit.panels().of(panel);
    fill(painter, window, stage.look->panel);
    const QRect title(0, 0, window.rect.Width(), PanelWidget::kTitleHeight);
    painter.fillRect(title, stage.look->title);
    painter.setPen(stage.look->line);
    painter.drawLine(title.bottomLeft(), title.bottomRight());
    if (!state.images.empty()) {
        const int edge = (PanelWidget::kTitleHeight - kPanelImageSize) / 2;
        painter.drawPixmap(
            edge, edge,
            stage.pictures.fit(state.images.begin()->second, nullptr, kPanelImageSize,
                               painter.device()->devicePixelRatioF()));
    }
    QFont font = fontOf(stage.windows.gdi().findFont(window.font));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(stage.look->text);
    drawShortened(
        painter,
        title.adjusted(PanelWidget::kImageAreaWidth + kTextGap, 0, -PanelWidget::kTitleHeight, 0),
        toQt(window.text));
    const QPointF arrow(title.right() - PanelWidget::kTitleHeight / 2.0, title.center().y());
    if (state.collapsed)
        paintArrowRight(painter, arrow, 4, stage.look->dimText);
    else
        paintArrowDown(painter, arrow, 4, stage.look->dimText);
    if (stage.windows.focus() == window.handle)
        paintKeyboardFrame(painter, title, stage.look->accent);
}

void paintLink(QPainter& painter, const Stage& stage, const Window& window) {
    QFont font = fontOf(nullptr);
    font.setUnderline(true);
    painter.setFont(font);
    painter.setPen(stage.look->link);
    painter.drawText(QRect(0, 0, window.rect.Width(), window.rect.Height()),
                     Qt::AlignVCenter | Qt::AlignLeft, toQt(window.text));
}

/// The part of a popup's border that runs through one of its windows, or all of it on the popup itself.
void paintPopupBorder(QPainter& painter, const Stage& stage, HWND window) {
    const Window* const popup = stage.windows.find(stage.windows.popupAbove(window));
    if (popup == nullptr || (popup->style & WS_BORDER) == 0)
        return;
    const CRect here = stage.windows.screenRect(window);
    painter.setPen(stage.look->edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(popup->rect.left - here.left, popup->rect.top - here.top,
                     popup->rect.Width() - 1, popup->rect.Height() - 1);
}

}  // namespace

void paintWindow(QPainter& painter, Stage& stage, Window& window) {
    const HWND handle = window.handle;
    if (window.popupOf != nullptr)
        fill(painter, window, stage.look->field);
    else if (dynamic_cast<PaletteSetWidget*>(window.widget.get()) != nullptr)
        paintBar(painter, stage, window);
    else if (dynamic_cast<PanelWidget*>(window.widget.get()) != nullptr)
        paintPanel(painter, stage, window);
    else if (dynamic_cast<LinkWidget*>(window.widget.get()) != nullptr)
        paintLink(painter, stage, window);
    else if (isFloatingFrame(stage.toolkit.frame(), window))
        paintFloatingFrame(painter, stage, window, titleOfFloatingFrame(stage.toolkit, window));
    else if (!paintControl(painter, stage, window) &&
             (window.className == "CQrUiPanelSet" || window.className == "CDockBar"))
        fill(painter, window, stage.look->frame);
    paintPopupBorder(painter, stage, handle);
}

}  // namespace workbench::desktop
