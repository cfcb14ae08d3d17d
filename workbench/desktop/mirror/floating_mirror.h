#pragma once

#include "workbench/desktop/mirror/mirror_widget.h"

#include <functional>

class CQrUiPaletteSet;

namespace workbench::desktop {

/// The small frame of a floating palette set, a window on the screen: dragged by its caption, sized
/// by its corner, docked when it is let go at an edge of the host's window or clicked twice.
class FloatingMirror final : public MirrorWidget {
public:
    FloatingMirror(Stage& stage, HWND window, QWidget* owner);

    /// Follows the mouse, which is at a point of the screen with its button down elsewhere, until the
    /// button is let go.
    void hold(QPoint screenPoint);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    enum class Hold { None, Caption, Corner };

    CQrUiPaletteSet* shownSet() const;
    void moveOrSize(QPoint by);
    void dockIfAtEdge(QPoint screenPoint);

    Hold m_hold = Hold::None;
    QPoint m_last;  // of the drag, on the screen
};

}  // namespace workbench::desktop
