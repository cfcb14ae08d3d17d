#include "workbench/gestures/slider_gestures.h"

#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench::gestures {

namespace {

/// The slider at a handle, found afresh after each message.
struct Grip {
    Window& window;
    SliderWidget& slider;
    CPoint at(int x) const { return {x, window.rect.Height() / 2}; }
};

Grip gripOf(Toolkit& toolkit, HWND handle) {
    Window* const window = toolkit.windows().find(handle);
    auto* const slider =
        window == nullptr ? nullptr : dynamic_cast<SliderWidget*>(window->widget.get());
    if (slider == nullptr)
        throw GestureError("there is no slider to drag");
    return {*window, *slider};
}

bool takeThumb(Toolkit& toolkit, HWND handle) {
    const Grip grip = gripOf(toolkit, handle);
    if (grip.slider.isDragging())
        return true;
    const int thumb = grip.slider.scale(grip.window).middleAt(grip.slider.position());
    return toolkit.mouse().press(handle, grip.at(thumb));
}

bool moveThumb(Toolkit& toolkit, HWND handle, int position) {
    const Grip grip = gripOf(toolkit, handle);
    const SliderScale scale = grip.slider.scale(grip.window);
    const int x = scale.middleAt(position);
    if (scale.positionAt(x) == position)
        return toolkit.mouse().move(handle, grip.at(x), kLeftButtonHeld);
    const int fine = grip.slider.dragX() + position - grip.slider.position();
    return toolkit.mouse().move(handle, grip.at(fine), kLeftButtonHeld | kControlHeld);
}

}  // namespace

bool dragSlider(Toolkit& toolkit, HWND slider, const std::vector<int>& positions) {
    requireOnScreen(toolkit, slider);
    if (!takeThumb(toolkit, slider))
        return false;
    for (const int position : positions) {
        if (!moveThumb(toolkit, slider, position))
            return false;
    }
    return true;
}

bool releaseSlider(Toolkit& toolkit, HWND slider) {
    const Grip grip = gripOf(toolkit, slider);
    if (!grip.slider.isDragging())
        return false;
    return toolkit.mouse().release(slider, grip.at(grip.slider.dragX()));
}

}  // namespace workbench::gestures
