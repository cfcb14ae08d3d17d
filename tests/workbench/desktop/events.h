#pragma once

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

/// What a user's hands do, as Qt's own events.
namespace workbench::desktop {

inline void sendMouse(QWidget& widget, QEvent::Type type, QPoint point, Qt::MouseButton button,
                      Qt::MouseButtons held, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QMouseEvent event(type, point, widget.mapToGlobal(point), button, held, keys);
    QApplication::sendEvent(&widget, &event);
}
inline void press(QWidget& widget, QPoint point) {
    sendMouse(widget, QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton);
}
inline void moveHeld(QWidget& widget, QPoint point, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    sendMouse(widget, QEvent::MouseMove, point, Qt::NoButton, Qt::LeftButton, keys);
}
inline void release(QWidget& widget, QPoint point) {
    sendMouse(widget, QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton);
}
inline void click(QWidget& widget, QPoint point) {
    press(widget, point);
    release(widget, point);
}
inline void click(QWidget& widget) {
    click(widget, widget.rect().center());
}
inline void doubleClick(QWidget& widget, QPoint point) {
    click(widget, point);
    sendMouse(widget, QEvent::MouseButtonDblClick, point, Qt::LeftButton, Qt::LeftButton);
    release(widget, point);
}
inline void hover(QWidget& widget, QPoint point) {
    sendMouse(widget, QEvent::MouseMove, point, Qt::NoButton, Qt::NoButton);
}
inline void openMenu(QWidget& widget, QPoint point) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, widget.mapToGlobal(point));
    QApplication::sendEvent(&widget, &event);
}
inline void turnWheel(QWidget& widget, int notches) {
    const QPointF point = widget.rect().center();
    QWheelEvent event(point, widget.mapToGlobal(point), {}, {0, notches * 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}
inline void pressKey(QWidget& widget, int key, const QString& text = {},
                     Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QKeyEvent down(QEvent::KeyPress, key, keys, text);
    QApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &up);
}
inline void typeText(QWidget& widget, const QString& text) {
    for (const QChar letter : text)
        pressKey(widget, Qt::Key_unknown, QString(letter));
}

}  // namespace workbench::desktop
