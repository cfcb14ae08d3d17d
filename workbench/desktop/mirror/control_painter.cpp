#include "workbench/desktop/mirror/control_painter.h"

#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/desktop/mirror/step_painter.h"
#include "workbench/desktop/mirror/tree_painter.h"
#include "workbench/desktop/mirror/window_names.h"
#include "workbench/toolkit/button_widget.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/toolkit/tree_widget.h"
#include "workbench/windows/window_system.h"

#include <QPainter>
#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kTrackHeight = 4;    // pixels
constexpr int kComboButton = 16;   // pixels at the right of a list's field
constexpr int kComboPicture = 16;  // logical pixels
constexpr int kComboTextMargin = 4;

QRect areaOf(const Window& window) {
    return {0, 0, window.rect.Width(), window.rect.Height()};
}

/// The border of a part that takes the keyboard.
void paintBorder(QPainter& painter, const Stage& stage, const Window& window) {
    const bool hasKeyboard = stage.windows.focus() == window.handle;
    painter.setPen(hasKeyboard ? stage.look->accent : stage.look->edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(areaOf(window).adjusted(0, 0, -1, -1));
}

void paintTicks(QPainter& painter, const Stage& stage, const SliderWidget& slider,
                const SliderScale& scale, int height) {
    painter.setPen(stage.look->line);
    for (const int tick : slider.ticks()) {
        const int x = scale.middleAt(tick);
        painter.drawLine(x, height - 3, x, height - 1);
    }
}

void paintSlider(QPainter& painter, Stage& stage, const Window& window,
                 const SliderWidget& slider) {
    const bool enabled = stage.windows.takesInput(window.handle);
    const SliderScale scale = slider.scale(window);
    const int height = window.rect.Height();
    const int middle = scale.middleAt(slider.position());
    const int left = scale.middleAt(slider.lowest());
    const int right = scale.middleAt(slider.highest());
    const int top = (height - kTrackHeight) / 2 - 1;
    const QColor lit = enabled ? stage.look->accent : stage.look->dimText;
    painter.fillRect(left, top, right - left, kTrackHeight, stage.look->line);
    painter.fillRect(left, top, middle - left, kTrackHeight, lit);
    paintTicks(painter, stage, slider, scale, height);
    const bool hasKeyboard = stage.windows.focus() == window.handle;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(hasKeyboard ? stage.look->accent : stage.look->edge, hasKeyboard ? 2 : 1));
    painter.setBrush(enabled ? stage.look->thumb : stage.look->frame);
    const QRectF thumb(middle - SliderScale::kThumbWidth / 2.0 + 0.5, 0.5,
                       SliderScale::kThumbWidth - 1, height - 4);
    painter.drawRoundedRect(thumb, 2.5, 2.5);
}

/// Each character in a place of its own, so that a click finds the place that the field means.
void paintEdit(QPainter& painter, Stage& stage, const Window& window, EditWidget& edit) {
    const bool enabled = stage.windows.takesInput(window.handle);
    painter.fillRect(areaOf(window), enabled ? stage.look->field : stage.look->panel);
    painter.save();
    painter.setClipRect(areaOf(window).adjusted(1, 1, -1, -1));
    painter.setFont(fieldFont());
    const LineEditor& line = edit.editor(window);
    const auto first = static_cast<int>(edit.scrolled(window));
    const auto xOf = [first](std::size_t place) {
        return EditWidget::kTextMargin +
               (static_cast<int>(place) - first) * EditWidget::kCharacterWidth;
    };
    const bool hasKeyboard = stage.windows.focus() == window.handle;
    const std::size_t from = std::min(line.caret(), line.anchor());
    const std::size_t to = std::max(line.caret(), line.anchor());
    const int height = window.rect.Height();
    if (hasKeyboard && from != to)
        painter.fillRect(xOf(from), 3, xOf(to) - xOf(from), height - 6, stage.look->accent);
    for (std::size_t i = 0; i < line.text().size(); ++i) {
        const bool selected = hasKeyboard && i >= from && i < to;
        painter.setPen(!enabled ? stage.look->dimText
                                : (selected ? stage.look->accentText : stage.look->fieldText));
        painter.drawText(QRect(xOf(i), 0, EditWidget::kCharacterWidth, height),
                         Qt::AlignCenter | Qt::TextDontClip,
                         toQt(std::wstring_view(line.text()).substr(i, 1)));
    }
    if (hasKeyboard)
        painter.fillRect(xOf(line.caret()), 3, 1, height - 6, stage.look->fieldText);
    painter.restore();
    paintBorder(painter, stage, window);
}

void paintCombo(QPainter& painter, Stage& stage, const Window& window, const ComboWidget& combo) {
    const bool enabled = stage.windows.takesInput(window.handle);
    const QRect area = areaOf(window);
    painter.fillRect(area, enabled ? stage.look->field : stage.look->panel);
    const QColor ink = enabled ? stage.look->fieldText : stage.look->dimText;
    int left = kComboTextMargin;
    painter.setFont(fontOf(stage.windows.gdi().findFont(window.font)));
    const auto drawText = [&](const QString& text) {
        const QRect room(left, 0, area.width() - left - kComboButton, area.height());
        painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                         painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
    };
    if (const QRUI_COMBO_CTRL_ITEM* shown = combo.entry(combo.selected())) {
        const QPixmap picture = stage.pictures.fit(shown->image, nullptr, kComboPicture,
                                                   painter.device()->devicePixelRatioF());
        if (!picture.isNull()) {
            painter.drawPixmap(left, (area.height() - kComboPicture) / 2, picture);
            left += kComboPicture + kComboTextMargin;
        }
        painter.setPen(ink);
        drawText(toQt(shown->text));
    } else {
        // Nothing is chosen: then the list says what could be.
        painter.setPen(stage.look->dimText);
        drawText(namesOf(stage.toolkit, window).name);
    }
    paintArrowDown(painter, {area.width() - kComboButton / 2.0, area.height() / 2.0}, 4, ink);
    paintBorder(painter, stage, window);
}

/// What the button draws of itself, with a frame while it has the keyboard.
void paintOwnerDrawn(QPainter& painter, Stage& stage, const Window& window) {
    const HWND button = window.handle;
    const QRect area = areaOf(window);
    const bool hasKeyboard = stage.windows.focus() == button;
    paintSteps(painter, stage, drawingOf(stage.toolkit, button));
    if (hasKeyboard)
        paintKeyboardFrame(painter, area, stage.look->accent);
}

/// A button of the host's own toolbars: undo or redo.
void paintButton(QPainter& painter, Stage& stage, const Window& window) {
    const QRect area(0, 0, std::min(window.rect.Width(), window.rect.Height()),
                     window.rect.Height());
    painter.fillRect(area, stage.look->field);
    painter.setPen(stage.look->line);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    constexpr int kRedo = 55556;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center());
    if (window.id == kRedo)
        painter.scale(-1, 1);
    painter.setPen(QPen(stage.look->text, 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(-5, -3, 11, 10), -60 * 16, 200 * 16);
    painter.drawLine(QPointF(-5, 1), QPointF(-6, -4));
    painter.drawLine(QPointF(-5, 1), QPointF(0, 0));
}

}  // namespace

bool paintControl(QPainter& painter, Stage& stage, Window& window) {
    if (const auto* slider = dynamic_cast<SliderWidget*>(window.widget.get()))
        paintSlider(painter, stage, window, *slider);
    else if (auto* edit = dynamic_cast<EditWidget*>(window.widget.get()))
        paintEdit(painter, stage, window, *edit);
    else if (const auto* combo = dynamic_cast<ComboWidget*>(window.widget.get()))
        paintCombo(painter, stage, window, *combo);
    else if (const auto* tree = dynamic_cast<TreeWidget*>(window.widget.get()))
        paintTree(painter, stage, window, *tree);
    else if (isOwnerDrawn(window))
        paintOwnerDrawn(painter, stage, window);
    else if (window.className == "ToolbarButton")
        paintButton(painter, stage, window);
    else
        return false;
    return true;
}

}  // namespace workbench::desktop
