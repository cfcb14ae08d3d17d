#pragma once

#include "workbench/desktop/mirror/mirror_widget.h"

namespace workbench::desktop {

/// A panel set: where the panels go on below what is on show, a thin bar at its right edge tells how
/// far, and scrolls them.
class PanelSetMirror final : public MirrorWidget {
public:
    PanelSetMirror(Stage& stage, HWND window, QWidget* parent);

    /// Takes over how far the panels reach and are scrolled.
    void follow();

private:
    class SlimBar;

    void scrollTo(int offset);

    SlimBar* m_bar;
};

}  // namespace workbench::desktop
