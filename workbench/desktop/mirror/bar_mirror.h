#pragma once

#include "workbench/desktop/mirror/mirror_widget.h"

#include <optional>

namespace workbench::desktop {

/// A palette set: its grip is dragged to dock it at an edge or to let it float, and bears the buttons
/// that roll it up and hide it. All else is the window's own affair.
class BarMirror final : public MirrorWidget {
public:
    using MirrorWidget::MirrorWidget;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    bool isOnGrip(QPoint point) const;
    bool isStrip() const;
    void click(QPoint point);
    void floatUnder(QPoint screenPoint);

    std::optional<QPoint> m_pressed;  // on the grip
};

}  // namespace workbench::desktop
