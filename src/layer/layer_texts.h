#pragma once

#include <hostapi/types.h>

/// The texts of the layer filter controls, which stand beside the resource library: they are shared with
/// the host's own layer dialogs and go by keys.
class CVxDaLyCtrlMgdResMgr {
public:
    /// The text of a key; empty for an unknown one.
    static VxString GetLocalResString(const wchar_t* key);
};
