#include "workbench/desktop/mirror/panel_set_mirror.h"

#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/panel_set_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <QEnterEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kSlim = 3;  // pixels, beside fields that reach to the edge
constexpr int kWide = 10;

}  // namespace

/// A thumb only, which grows under the mouse.
class PanelSetMirror::SlimBar final : public QScrollBar {
public:
    SlimBar(const Stage& stage, QWidget* parent)
        : QScrollBar(Qt::Vertical, parent),
          m_stage(stage) {
        setFocusPolicy(Qt::NoFocus);
        setAccessibleName(QStringLiteral("Scroll the panels"));
        hide();
    }
    void place(int right, int height) {
        const int width = underMouse() || isSliderDown() ? kWide : kSlim;
        setGeometry(right - width, 0, width, height);
        raise();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const int whole = maximum() + pageStep();
        const int top = height() * value() / std::max(1, whole);
        const int length = height() * pageStep() / std::max(1, whole);
        QPainter painter(this);
        painter.fillRect(0, top, width(), length, m_stage.look->dimText);
    }
    void mousePressEvent(QMouseEvent* event) override {
        setSliderDown(true);
        moveTo(event->position().y());
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        if (isSliderDown())
            moveTo(event->position().y());
    }
    void mouseReleaseEvent(QMouseEvent* /*event*/) override { setSliderDown(false); }
    void enterEvent(QEnterEvent* event) override {
        QScrollBar::enterEvent(event);
        place(geometry().right() + 1, height());
    }
    void leaveEvent(QEvent* event) override {
        QScrollBar::leaveEvent(event);
        place(geometry().right() + 1, height());
    }

private:
    /// Its thumb's middle goes to a place.
    void moveTo(double y) {
        const double whole = maximum() + pageStep();
        setValue(static_cast<int>(y / std::max(1, height()) * whole - pageStep() / 2.0));
    }

    const Stage& m_stage;
};

PanelSetMirror::PanelSetMirror(Stage& stage, HWND window, QWidget* parent)
    : MirrorWidget(stage, window, parent),
      m_bar(new SlimBar(stage, this)) {
    connect(m_bar, &QScrollBar::valueChanged, [this](int offset) { scrollTo(offset); });
}

void PanelSetMirror::follow() {
    const Window* const window = host();
    const QWidget* const room = parentWidget();
    if (window == nullptr || room == nullptr)
        return;
    const PanelSetState& state =
        stage().toolkit.panelSets().of(static_cast<const CQrUiPanelSet*>(window->object));
    const int shown = std::min(height(), room->height() - y());
    const int beyond = std::max(0, state.contentHeight - shown);
    m_bar->setRange(0, beyond);
    m_bar->setPageStep(shown);
    m_bar->setValue(state.scroll);
    m_bar->setVisible(beyond > 0);
    m_bar->place(width(), shown);
}

void PanelSetMirror::scrollTo(int offset) {
    stage().pump.act([this, offset] {
        if (Window* const window = host())
            static_cast<PanelSetWidget&>(*window->widget).scrollTo(*window, offset);
    });
}

}  // namespace workbench::desktop
