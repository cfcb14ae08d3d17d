#pragma once

#include <hostapi/types.h>

#include <QHash>
#include <QPoint>
#include <QPointer>
#include <QSet>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

class QWidget;

namespace workbench::desktop {

class BalloonBubbles;
class ListOverlay;
class MirrorWidget;
class PanelSetMirror;
struct Stage;

/// The workbench's window tree as widgets, one a window that is on show. It learns of changes by
/// notice and takes them over together, once the host has come to rest; what is not on show costs
/// nothing.
class WindowMirror {
public:
    /// `home` is where the host's main frame stands; it must outlive this.
    WindowMirror(Stage& stage, QWidget& home);
    WindowMirror(const WindowMirror&) = delete;
    WindowMirror& operator=(const WindowMirror&) = delete;
    ~WindowMirror();

    /// The widget of a window that is or was on show; null for none.
    MirrorWidget* widgetOf(HWND window) const;
    /// Has a widget fill a window of the host's own, such as the drawing view.
    void fill(HWND window, QWidget& content);
    /// Scrolls the panels so far that a window on them can be seen.
    void scrollIntoView(HWND window);
    /// Takes over all changes now.
    void sync();
    /// Draws everything anew, as after a change of the colours.
    void redrawAll();

    /// Brings the keyboard to the drawing when the host gives it to no part of a palette set.
    void setOnKeyboardToDrawing(std::function<void()> bring) { m_toDrawing = std::move(bring); }

private:
    void note(HWND window);
    void update(HWND window);
    MirrorWidget* showTree(HWND window);
    MirrorWidget* make(HWND window);
    QWidget* parentFor(HWND window) const;
    void followKeyboard();
    void holdFloating(HWND frame, QPoint screenPoint);

    Stage& m_stage;
    QWidget& m_home;
    QHash<HWND, QPointer<MirrorWidget>> m_mirrors;
    std::vector<QPointer<PanelSetMirror>> m_panelSets;
    std::vector<HWND> m_changed;  // in the order of the first change
    QSet<HWND> m_isChanged;       // the same, to look up
    QTimer m_soon;
    HWND m_keyboard = nullptr;  // where it was at the last sync
    std::function<void()> m_toDrawing;
    std::unique_ptr<ListOverlay> m_lists;
    std::unique_ptr<BalloonBubbles> m_balloons;
};

}  // namespace workbench::desktop
