#include "tests/hostile/filter_gestures.h"
#include "tests/hostile/gesture.h"
#include "tests/hostile/host.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/list_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/gestures/slider_gestures.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/windows/window_parts.h"

#include <map>
#include <utility>

namespace hostile {

namespace {

namespace gestures = workbench::gestures;
using gestures::GestureError;

constexpr const char* kFilterCombo = "LayerFilterComboControl";
/// Longer than any control waits before it writes.
constexpr std::int64_t kSettleMs = 400;

/// A part of a control, to be found again in whatever control stands there.
struct Part {
    std::string control;
    int number;        // of the controls of that name, from 0 on
    std::string name;  // empty: the control itself

    std::string text() const {
        const std::string which = number == 0 ? control : control + std::to_string(number + 1);
        return name.empty() ? which : which + "." + name;
    }
    HWND find() const {
        const HWND owner = named(control, number);
        const HWND part = name.empty() ? owner : findPart(host().windows(), owner, name);
        if (part == nullptr)
            throw GestureError("there is no part " + text());
        return part;
    }
    template <class Type>
    Type& widget() const {
        auto* const found = dynamic_cast<Type*>(host().windows().find(find())->widget.get());
        if (found == nullptr)
            throw GestureError(text() + " is of another kind");
        return *found;
    }
};

/// Another position than the present one.
int positionFor(const workbench::SliderWidget& slider) {
    const int middle = (slider.lowest() + slider.highest()) / 2;
    return slider.position() == middle ? middle + slider.lineSize() : middle;
}

void dragSlider(const Part& part) {
    const int position = positionFor(part.widget<workbench::SliderWidget>());
    if (gestures::dragSlider(host().toolkit(), part.find(), {position}))
        gestures::releaseSlider(host().toolkit(), part.find());
    letRun();
    wait(kSettleMs);
}

void turnWheel(const Part& part) {
    gestures::turnWheel(host().toolkit(), part.find(),
                        gestures::middleOf(host().toolkit(), part.find()), 1);
    letRun();
    wait(kSettleMs);
}

/// Another text on each call, so that each entry is one.
std::wstring nextEntry() {
    static int s_entry = 0;
    s_entry = s_entry % 7 + 1;
    return std::to_wstring(20 + s_entry);
}

void enterText(const Part& part) {
    if (!gestures::focusField(host().toolkit(), part.find()))
        throw GestureError(part.text() + " takes no focus");
    letRun();
    gestures::replaceText(host().toolkit(), nextEntry());
    letRun();
}

void leaveByKey(const Part& part, const char* key) {
    enterText(part);
    gestures::pressKey(host().toolkit(), key);
    letRun();
    gestures::blur(host().toolkit());
    letRun();
}

void leaveByClick(const Part& part) {
    enterText(part);
    gestures::blur(host().toolkit());
    letRun();
}

int indexFor(const workbench::ComboWidget& combo) {
    for (int index = 0; index < combo.count(); ++index) {
        if (index != combo.selected() && combo.entry(index)->separator == 0)
            return index;
    }
    return -1;
}

void pick(const Part& part) {
    if (!gestures::openList(host().toolkit(), part.find()))
        return;
    letRun();
    const int index = indexFor(part.widget<workbench::ComboWidget>());
    if (index < 0)
        gestures::closeList(host().toolkit(), part.find());
    else
        gestures::chooseFromList(host().toolkit(), part.find(), index);
    letRun();
}

void openAndClose(const Part& part) {
    gestures::openList(host().toolkit(), part.find());
    letRun();
    gestures::closeList(host().toolkit(), part.find());
    letRun();
}

void clickIcon(const Part& part) {
    gestures::clickIcon(host().toolkit(), part.find());
    letRun();
}

void clickMiddle(const Part& part) {
    gestures::clickAt(host().toolkit(), part.find(),
                      gestures::middleOf(host().toolkit(), part.find()));
    letRun();
}

void addPart(std::vector<Gesture>& all, const Part& part, const std::string& className) {
    const auto add = [&](const char* verb, auto&& make) {
        all.push_back({std::string(verb) + " " + part.text(), [part, make] { make(part); }});
    };
    if (className == "CQrUiProgSliderCtrl") {
        add("drag", dragSlider);
        add("turn the wheel on", turnWheel);
    } else if (className == "CQrUiInputEditCtrl") {
        add("tab out of", [](const Part& field) { leaveByKey(field, "tab"); });
        add("enter in", [](const Part& field) { leaveByKey(field, "enter"); });
        add("escape from", [](const Part& field) { leaveByKey(field, "escape"); });
        add("click out of", leaveByClick);
    } else if (className == "CQrUiComboCtrl") {
        add("pick in", pick);
        add("open and close", openAndClose);
    } else {
        add("click", clickMiddle);
    }
}

/// A control that is a list itself, or drops a tree down in its place.
void addCombo(std::vector<Gesture>& all, const Part& control) {
    if (control.control != kFilterCombo) {
        addPart(all, control, "CQrUiComboCtrl");
        return;
    }
    addPart(all, control, {});
    for (Gesture& gesture : filterGestures(control.control, control.number, control.text()))
        all.push_back(std::move(gesture));
}

}  // namespace

std::vector<Gesture> controlGestures() {
    std::vector<Gesture> all;
    std::map<std::string, int> seen;
    const workbench::WindowSystem& windows = host().windows();
    for (const CQrUiToolPanelItem* item : workbench::allItems(windows)) {
        const workbench::Window* const window = windows.find(item->GetControl());
        if (window == nullptr || window->name.empty())
            continue;
        const Part control{window->name, seen[window->name]++, {}};
        if (window->className == "CQrUiComboCtrl")
            addCombo(all, control);
        else
            all.push_back(
                {"click the icon of " + control.text(), [control] { clickIcon(control); }});
        for (const HWND below : windows.descendants(item->GetControl())) {
            const workbench::Window& part = *windows.find(below);
            if (windows.owner(below) != item->GetControl() ||
                part.className == "CQrUiCtrlContainer" || part.className == "CQrToolTipCtrl")
                continue;
            addPart(all, {control.control, control.number, partName(windows, below)},
                    part.className);
        }
    }
    return all;
}

}  // namespace hostile
