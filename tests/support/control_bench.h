#pragma once

#include "tests/support/bench.h"
#include "tests/support/first_rects.h"

#include <optional>
#include <string>
#include <vector>

namespace support {

/// Test fixture: the dashboard on show, and a user's verbs for one custom control.
class ControlBench : public Bench {
protected:
    /// In place of the example's menu: one panel with one control, so that nobody else calls the host.
    /// `count` of them stand below each other.
    void useMenuOf(const std::string& control, int count = 1);
    /// Shows the dashboard with this control in view, on a panel of its own if no menu was chosen,
    /// and forgets what happened so far.
    void showControl(const std::string& name);
    /// Takes the panels down and builds them again, the control anew.
    void rebuildControl();
    HWND window() const { return m_control; }

    HWND slider() { return part(m_control, "slider"); }
    HWND field(const std::string& name = "edit") { return part(m_control, name); }

    void drag(const std::vector<int>& positions);
    void release();
    void clickIcon();
    void focusField(const std::string& name = "edit");
    /// Focus and replace the text.
    void put(const std::wstring& text, const std::string& name = "edit");
    void press(const std::string& key);
    /// Focus, replace the text, Enter.
    void enter(const std::wstring& text, const std::string& name = "edit");
    /// Clicks into the drawing.
    void leave();
    /// Raises a change of a variable, as the host does; the value stays.
    void announce(const wchar_t* variable);
    /// Sends the control a message.
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    /// A value of the current drawing.
    workbench::Value db(const std::string& path);
    /// Changes it from outside.
    void setDb(const std::string& path, const workbench::Value& value);

    int position();
    std::wstring text(const std::string& name = "edit");
    std::wstring tipOf(HWND part);
    std::wstring stringOf(UINT number);
    /// The rectangle with which the control, or a part of it, was made.
    CRect firstRectOf(HWND part) { return m_firstRects->of(part); }
    /// A text of the resources with its inserts filled in.
    std::wstring filled(UINT number, const std::vector<std::wstring>& inserts);
    /// The text of the control's balloon as it stands; empty for none.
    std::wstring balloonText();
    /// The part of the control that its balloon points at; null for none.
    HWND balloonTarget();
    /// Whether the module has given a part the font that it publishes in the toolkit's theme.
    bool hasThemeFont(HWND part);
    bool isEnabled(HWND part);
    bool hasFocus(HWND part);
    /// How often a host call was made since the last look at the journal.
    std::size_t takeCount(const std::string& call);

private:
    std::string m_name;
    HWND m_control = nullptr;
    std::optional<FirstRects> m_firstRects;  // nothing before the control is shown
};

}  // namespace support
