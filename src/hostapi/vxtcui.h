#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>

/// The host's tool catalogue: tool palettes and their groups.

/// The window of tool palettes.
class VXHOST CVxTcUiToolPaletteSet {
public:
    virtual ~CVxTcUiToolPaletteSet() = default;
    /// Shows the palettes of a group. Returns 0 for an unknown one.
    virtual BOOL SetActivePaletteGroup(const VxString& group) = 0;
};

/// The tool palettes' manager.
class VXHOST CVxTcUiManager {
public:
    virtual ~CVxTcUiManager() = default;
    /// Whether the tool palette window is on screen.
    virtual BOOL IsToolPaletteWindowVisible() const = 0;
    /// The tool palette window, null before it was first shown.
    virtual CVxTcUiToolPaletteSet* GetToolPaletteWindow() = 0;
};

/// Type of the export "VxTpShowScheme" of the tool palettes' module: shows (1) or hides (0) the
/// palettes of a scheme. Answers 0 for an unknown scheme.
using VxTpShowSchemeFn = int (*)(const wchar_t* scheme, int show);

/// The manager, null while tool palettes are not installed.
CVxTcUiManager* VxTcUiGetManager();
/// Appends the names of a scheme's groups in their order. Returns 0 for an unknown scheme.
BOOL VxTcUiGetToolPaletteGroups(const wchar_t* scheme, CStringArray& groups);
