#pragma once

#include "workbench/desktop/look/look.h"
#include "workbench/desktop/look/pictures.h"
#include "workbench/desktop/pump/pump.h"

#include <hostapi/types.h>

#include <QPoint>
#include <QString>
#include <functional>

class CQrUiToolPanelItem;

namespace workbench {
class Toolkit;
class WindowSystem;
class Workbench;
}  // namespace workbench

namespace workbench::desktop {

/// What all widgets of the mirrored windows share.
struct Stage {
    Stage(Workbench& shown, Pump& runs, Shade shade);

    Workbench& workbench;
    WindowSystem& windows;
    Toolkit& toolkit;
    Pump& pump;
    Pictures pictures;
    const Look* look;  ///< Not owned; changes with the theme.

    /// Where the user last pressed a button of the mouse, or a key on a tool, on the screen: menus open
    /// there.
    QPoint pressedAt;
    /// Has the small frame of a bar that was just torn off follow the mouse, which is on the screen at
    /// a point, until its button is let go.
    std::function<void(HWND frame, QPoint screenPoint)> holdFloating;
    /// Takes a text that was typed where nothing takes texts.
    std::function<void(const QString&)> typed;
    /// Why a disabled part can't be used, as far as the host's state tells; empty otherwise. The item is
    /// the one of the window that is meant, null for the window as a whole.
    std::function<QString(HWND window, const CQrUiToolPanelItem* item)> whyDisabled;
};

}  // namespace workbench::desktop
