#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/window.h>
#include <hostapi/xmldom.h>

class CQrUiPalette;
class CQrUiTheme;

/// A bar that docks at a frame's edges, floats, or is anchored as a thin strip at an edge.
class VXHOST CQrUiDockControlBar : public CControlBar {
public:
    /// Whether the bar floats in a small frame of its own.
    BOOL IsFloating() const;
    /// Allows docking at the edges of the mask: 0x1000 left, 0x2000 top, 0x4000 right, 0x8000
    /// bottom.
    void EnableDocking(DWORD edges);
    /// Puts the bar where the user last had it, or docks it at `dockBar` with the size of
    /// `rectangle`. Places the bar only; does not show it.
    void RestoreControlBar(UINT dockBar, const CRect& rectangle);
};

/// A dockable set of palettes with a title bar. It owns the palettes added to it.
class VXHOST CQrUiPaletteSet : public CQrUiDockControlBar {
public:
    /// `reserved` is 0.
    explicit CQrUiPaletteSet(UINT reserved);
    ~CQrUiPaletteSet() override;

    /// Names the tool that the set is; before `Create`.
    void SetToolID(const GUID& tool);
    /// Creates the hidden window. Returns 0 on failure.
    BOOL Create(const VxString& title, DWORD style, const CRect& rect, CWnd* parent,
                UINT toolkitStyle);
    /// Adds a page and takes the object over.
    void AddPalette(CQrUiPalette* palette);

    /// Sets the theme, not owned.
    void SetTheme(CQrUiTheme* theme);
    CQrUiTheme* GetTheme() const;
    /// Whether the set is anchored as a thin strip.
    BOOL Anchored() const;
    /// The pixels that title bar and borders take from a floating set.
    CSize GetNonClientSize() const;

    /// Reads the set's place from a node; 0 on failure. Raises `VxComError` of the store.
    virtual BOOL Load(IUnknown* storageNode);
    /// Writes the set's place below a node; 0 on failure. Raises `VxComError` of the store.
    virtual BOOL Save(IUnknown* storageNode);
    /// Adds lines to the context menu that the toolkit has begun. Returns 0 on failure.
    virtual BOOL AddContextMenuItems(CMenu& menu);
    /// The set's theme changed in an element.
    virtual void ThemeModified(int element);

    const MessageMap& GetMessageMap() const override;

protected:
    static const MessageMap& GetThisMessageMap();
    /// The toolkit's creation step. -1 on failure.
    int OnCreate(const CREATESTRUCT* create);
};

/// Tells the toolkit which command of which module shows the tool of an ID.
void QrUiRegisterTool(const wchar_t* moduleName, const wchar_t* command, const GUID& tool);
/// Asks the frame to give the docked bar of a tool a height in pixels.
void QrUiResizeControlBarVerticalSize(const GUID& tool, int height);
