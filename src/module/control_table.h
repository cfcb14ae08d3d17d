#pragma once

#include <hostapi/window.h>

#include <memory>

class CVxDaControlMgr;

/// Makes a custom control with its window; null if the window could not be made.
using ControlFactory = std::unique_ptr<CWnd> (*)(CWnd* parent, const CRect& rect,
                                                 const wchar_t* name, CVxDaControlMgr* manager);

/// A row of the table of custom controls.
struct ControlTableRow {
    const wchar_t* name;
    ControlFactory factory;  ///< Null: the control can't be made.
};

/// The row of a name, compared without regard to case; null for an unknown one.
const ControlTableRow* findControlRow(const VxString& name);
