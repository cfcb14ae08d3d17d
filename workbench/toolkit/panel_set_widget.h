#pragma once

#include "workbench/windows/window.h"

#include <hostapi/qrui18.h>

namespace workbench {

class Toolkit;
class WindowSystem;
struct PanelSetState;

/// A panel set: stacks the panels of its list and scrolls them by the wheel.
class PanelSetWidget final : public Widget {
public:
    static constexpr int kMinimumWidth = 120;  ///< Pixels.
    static constexpr int kEmptyHeight = 20;    ///< Pixels of a set without panels.

    explicit PanelSetWidget(Toolkit& toolkit) : m_toolkit(toolkit) {}

    /// Stacks the panels of the list that have the visible style, and takes their height.
    void layout(Window& window);
    /// Scrolls so that the panels stand `offset` pixels further up, as far as they reach.
    void scrollTo(Window& window, int offset);

    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    std::string describe(const Window& window) const override;

private:
    WindowSystem& windows() const;
    PanelSetState& stateOf(const Window& window) const;
    int shownHeight(const Window& window) const;
    void stack(Window& window);
    void changeTheme(Window& window, WPARAM wParam, LPARAM lParam);

    Toolkit& m_toolkit;
};

}  // namespace workbench
