#pragma once

#include "core/module_window.h"
#include "layer/filter_tree.h"
#include "layer/inver_filter_check.h"

#include <hostapi/window/wnd.h>

/// The window below a filter combo, with the tree of all filters and the check that turns the filter in
/// force round. It goes when the keyboard leaves it.
class CVxDaLayerFilterComboDropdown final : public ModuleWindow<CWnd> {
public:
    /// The combo must outlive it, or its end of use.
    explicit CVxDaLayerFilterComboDropdown(CWnd& combo) : m_combo(combo) {}

    /// Creates the window, hidden. Without a window afterwards it could not be made.
    void create();
    /// Fills the window and shows it at a place on the screen. False, with nothing shown, without
    /// filters.
    bool showDropdown(int left, int bottom, int width);
    /// Hides the window if the keyboard is neither there nor in a window below it.
    void hideIfLeft();
    /// Hides the window if it is on screen.
    void hide();

    // CWnd:
    const MessageMap& GetMessageMap() const override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onFocusLost(WPARAM unused, LPARAM unusedToo);
    LRESULT onThemeChanged(WPARAM unused, LPARAM unusedToo);

    int treeHeight() const;

    CWnd& m_combo;
    CVxDaFilterTreeCtrl m_tree{*this};
    CVxDaInverFilterCheck m_check{*this};
};
