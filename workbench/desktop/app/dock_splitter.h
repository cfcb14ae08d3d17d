#pragma once

#include <QWidget>

class CQrUiPaletteSet;

namespace workbench::desktop {

struct Stage;

/// The edge between the drawing and the docked dashboard: dragged, it makes the dashboard wider or
/// narrower, within what its palettes allow.
class DockSplitter final : public QWidget {
public:
    static constexpr int kWidth = 4;  ///< Pixels, over the drawing's edge.

    /// `home` is where the host's main frame stands.
    DockSplitter(Stage& stage, QWidget& home);

    /// Stands at the dashboard's edge as it is now; hides while none is docked at its full width.
    void follow();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    CQrUiPaletteSet* dockedSet() const;

    Stage& m_stage;
    int m_grip = 0;  // x at which the mouse holds it
};

}  // namespace workbench::desktop
