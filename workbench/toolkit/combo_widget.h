#pragma once

#include "workbench/toolkit/control_widget.h"

#include <hostapi/qrui18/combo.h>

#include <memory>
#include <optional>
#include <vector>

namespace workbench {

class Toolkit;

/// A field with a list that drops down. A click opens the list; a choice in it selects an entry and
/// closes it. Arrow keys move through the open list, Enter chooses, Escape closes; in the closed field
/// arrow keys choose the next entry at once. The parent is told: `CBN_DROPDOWN` before the list is on
/// show, `CBN_SELENDOK` once an entry is selected, `CBN_CLOSEUP` when the list has gone, then
/// `CBN_SELCHANGE` if it is another entry than before.
class ComboWidget : public ControlWidget {
public:
    static constexpr int kHeight = 22;  ///< Pixels, of the field.

    explicit ComboWidget(Toolkit& toolkit) : m_toolkit(toolkit) {}
    ComboWidget(const ComboWidget&) = delete;
    ComboWidget& operator=(const ComboWidget&) = delete;
    ~ComboWidget() override;

    int add(Window& window, std::unique_ptr<QRUI_COMBO_CTRL_ITEM> entry);
    /// Ends an entry; if it was the selected one none is. False for an index outside.
    bool remove(Window& window, int index);
    void clear(Window& window);
    int count() const { return static_cast<int>(m_entries.size()); }
    /// The entry at an index, null outside.
    QRUI_COMBO_CTRL_ITEM* entry(int index) const;
    /// The selected entry's index; -1 for none.
    int selected() const { return m_selected; }
    /// Selects without telling anybody; -1, or an index outside, selects none.
    void select(Window& window, int index);

    bool isOpen() const { return m_open; }
    /// The entry of the open list that Enter would choose; -1 for none.
    int highlighted() const { return m_highlighted; }
    /// What a user does. Each gives false where it can't be done: a list that is open or not,
    /// an entry that is none or a separator.
    bool open(Window& window);
    bool choose(Window& window, int index);
    bool close(Window& window);

    // ControlWidget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    bool takesTab() const override { return true; }
    std::string describe(const Window& window) const override;
    int naturalHeight(const Window& window, int width) const override;

private:
    void tellParent(HWND combo, UINT notification);
    bool key(Window& window, WPARAM key);
    std::optional<int> nextFrom(int index, int step) const;
    bool canBeChosen(int index) const;
    void releaseImages();

    Toolkit& m_toolkit;
    std::vector<std::unique_ptr<QRUI_COMBO_CTRL_ITEM>> m_entries;
    int m_selected = -1;
    int m_highlighted = -1;  // in the open list
    bool m_open = false;
    HWND m_focusBefore = nullptr;  // who had the keyboard when the list opened
};

}  // namespace workbench
