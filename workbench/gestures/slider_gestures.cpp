#include "workbench/gestures/slider_gestures.h"

#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/host/workbench.h"
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

Grip gripOf(HWND handle) {
    Window* const window = Workbench::current().windows().find(handle);
    auto* const slider =
        window == nullptr ? nullptr : dynamic_cast<SliderWidget*>(window->widget.get());
    if (slider == nullptr)
        throw GestureError("there is no slider to drag");
    return {*window, *slider};
}

Mouse& mouse() {
    return Workbench::current().toolkit().mouse();
}

bool takeThumb(HWND handle) {
    const Grip grip = gripOf(handle);
    if (grip.slider.isDragging())
        return true;
    const int thumb = grip.slider.scale(grip.window).middleAt(grip.slider.position());
    return mouse().press(handle, grip.at(thumb));
}

bool moveThumb(HWND handle, int position) {
    const Grip grip = gripOf(handle);
    const SliderScale scale = grip.slider.scale(grip.window);
    const int x = scale.middleAt(position);
    if (scale.positionAt(x) == position)
        return mouse().move(handle, grip.at(x), kLeftButtonHeld);
    const int fine = grip.slider.dragX() + position - grip.slider.position();
    return mouse().move(handle, grip.at(fine), kLeftButtonHeld | kControlHeld);
}

}  // namespace

bool dragSlider(HWND slider, const std::vector<int>& positions) {
    requireOnScreen(slider);
    if (!takeThumb(slider))
        return false;
    for (const int position : positions) {
        if (!moveThumb(slider, position))
            return false;
    }
    return true;
}

bool releaseSlider(HWND slider) {
    const Grip grip = gripOf(slider);
    if (!grip.slider.isDragging())
        return false;
    return mouse().release(slider, grip.at(grip.slider.dragX()));
}

}  // namespace workbench::gestures
