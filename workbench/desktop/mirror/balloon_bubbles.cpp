#include "workbench/desktop/mirror/balloon_bubbles.h"

#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/toolkit.h"

#include <QLabel>
#include <QPalette>
#include <algorithm>
#include <utility>

namespace workbench::desktop {

namespace {

constexpr int kWidth = 210;  // pixels
constexpr int kMargin = 6;

}  // namespace

BalloonBubbles::~BalloonBubbles() {
    for (const QPointer<QLabel>& bubble : std::as_const(m_bubbles))
        delete bubble.data();
}

void BalloonBubbles::update(HWND owner, MirrorWidget* target) {
    const std::wstring text = m_stage.toolkit.balloons().textOf(owner);
    if (text.empty() || target == nullptr) {
        delete m_bubbles.take(owner).data();
        return;
    }
    QWidget* const top = target->window();
    QPointer<QLabel>& bubble = m_bubbles[owner];
    if (bubble == nullptr || bubble->parentWidget() != top) {
        delete bubble.data();
        bubble = new QLabel(top);
        bubble->setWordWrap(true);
        bubble->setFrameShape(QFrame::Box);
        bubble->setMargin(kMargin);
        bubble->setAutoFillBackground(true);
        bubble->setAttribute(Qt::WA_TransparentForMouseEvents);
        dress(*bubble);
    }
    bubble->setText(toQt(text));
    bubble->setAccessibleName(toQt(text));
    bubble->setFixedWidth(kWidth);
    bubble->setFixedHeight(bubble->heightForWidth(kWidth));
    const QPoint below = target->mapTo(top, QPoint(0, target->height() + 2));
    bubble->move(std::clamp(below.x(), 0, std::max(0, top->width() - kWidth - 2)),
                 std::clamp(below.y(), 0, std::max(0, top->height() - bubble->height())));
    bubble->show();
    bubble->raise();
}

void BalloonBubbles::restyle() {
    for (const QPointer<QLabel>& bubble : std::as_const(m_bubbles)) {
        if (bubble != nullptr)
            dress(*bubble);
    }
}

void BalloonBubbles::dress(QLabel& bubble) const {
    QPalette colours = bubble.palette();
    colours.setColor(QPalette::Window, m_stage.look->balloon);
    colours.setColor(QPalette::WindowText, m_stage.look->balloonText);
    bubble.setPalette(colours);
    bubble.setFont(fontOf(nullptr));
}

}  // namespace workbench::desktop
