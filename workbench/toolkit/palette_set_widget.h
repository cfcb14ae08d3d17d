#pragma once

#include "workbench/windows/window.h"

#include <hostapi/qrui18.h>

namespace workbench {

class Toolkit;
class WindowSystem;
struct PaletteSetState;

/// A palette set: keeps its palettes as large as its client area, below the grip of a docked set,
/// and offers the context menu of its title bar.
class PaletteSetWidget final : public Widget {
public:
    static constexpr int kGripHeight = 13;  ///< Pixels at the top of a docked set.

    explicit PaletteSetWidget(Toolkit& toolkit) : m_toolkit(toolkit) {}

    /// Sizes the palettes.
    void layout(const Window& window);

    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    std::string describe(const Window& window) const override;

private:
    WindowSystem& windows() const;
    PaletteSetState& stateOf(const Window& window) const;
    void moveOrSize(const Window& window);
    void openContextMenu(Window& window);
    bool runOwnCommand(Window& window, UINT command);

    Toolkit& m_toolkit;
};

}  // namespace workbench
