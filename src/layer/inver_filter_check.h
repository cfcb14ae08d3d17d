#pragma once

#include "core/module_window.h"

#include <hostapi/window/button.h>

class CVxDaLayerFilterComboDropdown;

/// Check box that turns the layer filter in force round, at once and for the host's own list of layers.
class CVxDaInverFilterCheck final : public ModuleWindow<CButton> {
public:
    /// The dropdown that it stands in must outlive it.
    explicit CVxDaInverFilterCheck(CVxDaLayerFilterComboDropdown& dropdown)
        : m_dropdown(dropdown) {}

    /// Width of the part with the check mark, and height of the whole, in pixels.
    int boxSize() const { return m_boxSize; }
    void setBoxSize(int pixels) { m_boxSize = pixels; }
    /// Shows the check, without a change of the host's flag.
    void setChecked(bool checked) { m_checked = checked; }

    // CWnd:
    const MessageMap& GetMessageMap() const override;
    // CButton:
    void DrawItem(const DRAWITEMSTRUCT* item) override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onGetCheck(WPARAM unused, LPARAM unusedToo);
    LRESULT onSetCheck(WPARAM state, LPARAM unused);
    LRESULT onFocusLost(WPARAM unused, LPARAM unusedToo);
    LRESULT onMouseMove(WPARAM keys, LPARAM point);
    LRESULT onMouseLeave(WPARAM unused, LPARAM unusedToo);
    LRESULT onOwnNotice(WPARAM notice, LPARAM control);

    void setHostCheck(bool checked);
    void drawBox(CDC& context, int height);
    void drawText(CDC& context, const CRect& client);

    CVxDaLayerFilterComboDropdown& m_dropdown;
    CBitmap m_checkMark;  // without a bitmap until it is drawn first
    int m_boxSize = 26;
    bool m_hovered = false;
    bool m_checked = false;
};
