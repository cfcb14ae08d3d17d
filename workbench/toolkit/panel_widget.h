#pragma once

#include "workbench/windows/window.h"

#include <hostapi/qrui18.h>

namespace workbench {

class Toolkit;
class WindowSystem;
struct PanelState;

/// A panel: a title bar with an image, below it the tool panels. A click on the title rolls the
/// panel up or down, a double click on the image opens what the panel is tied to. With the keyboard
/// on its title, Enter rolls it up or down, Left up and Right down.
class PanelWidget final : public Widget {
public:
    static constexpr int kTitleHeight = 20;     ///< Pixels.
    static constexpr int kImageAreaWidth = 20;  ///< Pixels of the title, at the left.

    explicit PanelWidget(Toolkit& toolkit) : m_toolkit(toolkit) {}

    /// Gives the panel a width and stacks its tool panels. Returns the height it takes.
    int layout(Window& window, int width);
    /// Rolls the panel up to its title, or down, and tells the panel set.
    void collapse(Window& window, bool collapsed);

    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    bool takesTab() const override { return true; }
    std::string describe(const Window& window) const override;

private:
    WindowSystem& windows() const;
    PanelState& stateOf(const Window& window) const;
    bool key(Window& window, WPARAM key);
    void openContextMenu(Window& window);
    void changeTheme(const Window& window, WPARAM wParam, LPARAM lParam);

    Toolkit& m_toolkit;
    bool m_titlePressed = false;
};

}  // namespace workbench
