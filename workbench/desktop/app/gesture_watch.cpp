#include "workbench/desktop/app/gesture_watch.h"

#include "workbench/desktop/panes/journal_pane.h"
#include "workbench/desktop/pump/pump.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace workbench::desktop {

namespace {

QString nameOf(const QEvent& keyPress) {
    return QKeySequence(static_cast<const QKeyEvent&>(keyPress).key())
        .toString(QKeySequence::NativeText);
}

}  // namespace

GestureWatch::GestureWatch(Pump& pump, JournalPane& journal) : m_pump(pump), m_journal(journal) {
    m_afterRelease.setSingleShot(true);
    connect(&m_afterRelease, &QTimer::timeout, this, [this] { endIfDone(); });
    m_pump.setOnIdle([this] { endIfDone(); });
    qApp->installEventFilter(this);
}

GestureWatch::~GestureWatch() {
    qApp->removeEventFilter(this);
    m_pump.setOnIdle(nullptr);
}

bool GestureWatch::eventFilter(QObject* watched, QEvent* event) {
    const auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        begin(QStringLiteral("Press on ") + widget->accessibleName());
        break;
    case QEvent::MouseButtonDblClick:
        begin(QStringLiteral("Double click on ") + widget->accessibleName());
        break;
    case QEvent::Wheel:
        begin(QStringLiteral("Wheel on ") + widget->accessibleName());
        release();
        break;
    case QEvent::KeyPress:
        begin(QStringLiteral("Key ") + nameOf(*event));
        break;
    case QEvent::MouseButtonRelease:
        if (static_cast<const QMouseEvent*>(event)->buttons() == Qt::NoButton)
            release();
        break;
    case QEvent::KeyRelease:
        release();
        break;
    default:
        break;
    }
    return false;
}

void GestureWatch::begin(const QString& title) {
    m_held = true;
    m_journal.beginGesture(title);
}

/// Who is to get the release has not had it yet.
void GestureWatch::release() {
    m_held = false;
    m_afterRelease.start(0);
}

void GestureWatch::endIfDone() {
    if (!m_held && !m_pump.isBusy())
        m_journal.endGesture();
}

}  // namespace workbench::desktop
