#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/window/gdi.h>

/// Is told when a theme has changed. Not owned by the theme.
class VXHOST CQrUiThemeModifiedReactor {
public:
    virtual ~CQrUiThemeModifiedReactor() = default;
    /// The theme's element with this number changed.
    virtual void ThemeModified(int element) = 0;
};

/// A named set of fonts, values and pointers. Owned by the theme manager; held from `GetTheme` to
/// `ReleaseTheme`.
class VXHOST CQrUiTheme {
public:
    virtual ~CQrUiTheme() = default;

    /// Adds a reactor; one that is in the list already stays once.
    virtual void RegisterReactor(CQrUiThemeModifiedReactor* reactor) = 0;
    /// Removes a reactor; an unknown one is ignored.
    virtual void UnregisterReactor(CQrUiThemeModifiedReactor* reactor) = 0;
    /// The font of an element. Returns 0 if the theme has none there.
    virtual BOOL GetFont(int element, LOGFONT& font) const = 0;
    /// Stores a number under an index.
    virtual void SetData(int index, int value) = 0;
    /// Stores a pointer, not owned, under an index. Tells the reactors unless changes are
    /// suspended.
    virtual void SetDataPtr(int index, void* pointer) = 0;
    /// Holds back the telling of reactors until as many `ResumeModifiedNotifications`.
    void SuspendModifiedNotifications() { ++m_suspended; }
    /// Ends one suspension. Changes made meanwhile are not told afterwards: a reactor that stores
    /// into the theme would otherwise be called without end.
    virtual void ResumeModifiedNotifications() = 0;

protected:
    int m_suspended = 0;  ///< Suspensions that have not been resumed.
};

/// Hands out themes by name.
class VXHOST CQrUiThemeManager {
public:
    virtual ~CQrUiThemeManager() = default;
    /// The theme of a name, null if there is none.
    virtual CQrUiTheme* GetTheme(const wchar_t* name) = 0;
    /// Gives a theme back.
    virtual void ReleaseTheme(CQrUiTheme* theme) = 0;
};

/// The toolkit's theme manager, null before the toolkit runs.
CQrUiThemeManager* QrUiGetThemeManager();
