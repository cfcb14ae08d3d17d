#pragma once

#include "core/module_window.h"

#include <hostapi/qrui18/ctrl_container.h>

/// A strip of edit fields that reports keys and focus changes to the control that holds it:
/// `WM_DA_EDIT_ENTER`, `WM_DA_EDIT_ESCAPE`, `WM_DA_EDIT_SETFOCUS` and `WM_DA_EDIT_KILLFOCUS`.
class CVxDaCtrlContainer final : public ModuleWindow<CQrUiCtrlContainer> {
public:
    // CWnd:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL PreTranslateMessage(MSG* msg) override;

private:
    CWnd* findFocusedItem() const;
};

/// Control IDs of the fields for the coordinates of a point.
constexpr UINT kFieldXId = 5001;
constexpr UINT kFieldYId = 5002;
constexpr UINT kFieldZId = 5003;

/// Fills a container with fields for the coordinates of a point; it grows to their height. Returns 0
/// if there is no container or it has no window.
BOOL createCoordinateFields(CVxDaCtrlContainer* container);
