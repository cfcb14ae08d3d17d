#pragma once

#include <QRect>
#include <QString>

namespace workbench {
class MainFrame;
class Toolkit;
struct Window;
}  // namespace workbench

class CQrUiPaletteSet;

namespace workbench::desktop {

/// The parts of the strip at the top of a docked palette set, in its client area.
struct BarParts {
    QRect grip;              ///< Takes hold of the set.
    QRect anchor;            ///< Rolls the set up to a strip at its edge, or docks it again.
    QRect close;             ///< Hides it.
    int smallestFull = 100;  ///< Pixels; a narrower set shows no more than its strip.
};
BarParts partsOfDockedBar(int width);

/// The parts of the small frame around a floating palette set.
struct FloatingParts {
    QRect caption;
    QRect close;
    QRect corner;  ///< Sizes the frame.
};
FloatingParts partsOfFloatingFrame(int width, int height);

/// Whether a window is the small frame of a floating palette set.
bool isFloatingFrame(MainFrame& frame, const Window& window);
/// The palette set in a small frame; null for another window.
CQrUiPaletteSet* setInFloatingFrame(MainFrame& frame, const Window& window);
/// The title of the palette set in a small frame.
QString titleOfFloatingFrame(Toolkit& toolkit, const Window& window);

}  // namespace workbench::desktop
