#pragma once

#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/slider_scale.h"

#include <optional>
#include <vector>

namespace workbench {

class Toolkit;

/// A slider with tick marks. The mouse drags its thumb, a click on its track moves the thumb there;
/// with the control key held a drag moves one position a pixel, however long the range is. Arrow
/// keys and the wheel move by lines, page keys by five lines, Home and End to the ends.
class SliderWidget final : public ControlWidget {
public:
    static constexpr int kHeight = 16;  ///< Pixels.

    explicit SliderWidget(Toolkit& toolkit) : m_toolkit(toolkit) {}

    int position() const { return m_position; }
    int lowest() const { return m_lowest; }
    int highest() const { return m_highest; }
    int lineSize() const { return m_lineSize; }
    const std::vector<int>& ticks() const { return m_ticks; }
    bool isDragging() const { return m_drag.has_value(); }
    /// The x of the mouse at the last move of a drag, in client coordinates; 0 outside of one.
    int dragX() const { return m_drag ? m_drag->x : 0; }

    void setRange(Window& window, int lowest, int highest);
    void setLineSize(int positions) { m_lineSize = positions; }
    /// The `SetControlStyle` bits.
    UINT style() const { return m_style; }
    void setStyle(UINT style) { m_style = style; }
    void addTick(int position) { m_ticks.push_back(position); }
    /// Moves the thumb without telling the parent.
    void setPosition(Window& window, int position);
    /// Positions and pixels of the slider as it stands now.
    SliderScale scale(const Window& window) const;

    // ControlWidget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    bool takesTab() const override { return true; }
    std::string describe(const Window& window) const override;
    int naturalHeight(const Window& window, int width) const override;

private:
    struct Drag {
        int grip;    // x of the mouse from the thumb's middle, pixels
        int x;       // of the mouse at its last move
        HWND focus;  // that had the keyboard before
    };

    void press(Window& window, CPoint point);
    void drag(Window& window, WPARAM held, CPoint point);
    void release(Window& window);
    bool key(Window& window, WPARAM key);
    void moveByGesture(Window& window, int position);

    Toolkit& m_toolkit;
    int m_lowest = 0;
    int m_highest = 100;
    int m_position = 0;
    int m_lineSize = 1;
    UINT m_style = 0;
    std::vector<int> m_ticks;
    std::optional<Drag> m_drag;  // nothing: no button is held
};

}  // namespace workbench
