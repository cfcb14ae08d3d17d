#include "workbench/desktop/mirror/balloon_bubbles.h"

#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/toolkit.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QPalette>
#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kWidth = 210;  // pixels
constexpr int kMargin = 6;

}  // namespace

BalloonBubbles::BalloonBubbles(Stage& stage) : m_stage(stage) {
    qApp->installEventFilter(this);
}

BalloonBubbles::~BalloonBubbles() {
    delete m_bubble.data();
}

void BalloonBubbles::update(HWND owner, MirrorWidget* target) {
    const std::wstring text = m_stage.toolkit.balloons().textOf(owner);
    if (text.empty() || target == nullptr) {
        if (owner == m_owner)
            end();
        return;
    }
    m_owner = owner;
    m_target = target;
    show(toQt(text));
}

void BalloonBubbles::show(const QString& text) {
    QWidget* const top = m_target->window();
    if (m_bubble == nullptr || m_bubble->parentWidget() != top) {
        delete m_bubble.data();
        m_bubble = new QLabel(top);
        m_bubble->setWordWrap(true);
        m_bubble->setFrameShape(QFrame::Box);
        m_bubble->setMargin(kMargin);
        m_bubble->setAutoFillBackground(true);
        dress(*m_bubble);
    }
    m_bubble->setText(text);
    m_bubble->setAccessibleName(text);
    m_bubble->setFixedWidth(kWidth);
    m_bubble->setFixedHeight(m_bubble->heightForWidth(kWidth));
    follow();
}

void BalloonBubbles::follow() {
    if (m_bubble == nullptr || m_target == nullptr)
        return;
    const QWidget* const top = m_bubble->parentWidget();
    const QPoint below = m_target->mapTo(top, QPoint(0, m_target->height() + 2));
    m_bubble->move(std::clamp(below.x(), 0, std::max(0, top->width() - kWidth - 2)),
                   std::clamp(below.y(), 0, std::max(0, top->height() - m_bubble->height())));
    m_bubble->setVisible(!m_target->visibleRegion().isEmpty());
    m_bubble->raise();
}

void BalloonBubbles::end() {
    m_owner = nullptr;
    m_target.clear();
    delete m_bubble.data();
}

/// Anything that the user does elsewhere ends the balloon too, before it has its effect.
bool BalloonBubbles::eventFilter(QObject* watched, QEvent* event) {
    const bool isTurnedAway =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress;
    if (m_owner == nullptr || !isTurnedAway || qobject_cast<QWidget*>(watched) == nullptr)
        return false;
    const bool isOnBubble = watched == m_bubble.data();
    // Not deleted here: the click on it isn't over yet.
    if (isOnBubble && m_bubble != nullptr) {
        m_bubble->hide();
        m_bubble.data()->deleteLater();
        m_bubble.clear();
    }
    m_stage.pump.act([this] { m_stage.toolkit.balloons().dismiss(); });
    return isOnBubble;
}

void BalloonBubbles::restyle() {
    if (m_bubble != nullptr)
        dress(*m_bubble);
}

void BalloonBubbles::dress(QLabel& bubble) const {
    QPalette colours = bubble.palette();
    colours.setColor(QPalette::Window, m_stage.look->balloon);
    colours.setColor(QPalette::WindowText, m_stage.look->balloonText);
    bubble.setPalette(colours);
    bubble.setFont(fontOf(nullptr));
}

}  // namespace workbench::desktop
