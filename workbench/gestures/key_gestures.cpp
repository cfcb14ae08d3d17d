#include "workbench/gestures/key_gestures.h"

#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <iterator>

namespace workbench::gestures {

namespace {

struct NamedKey {
    const char* name;
    UINT message;
    WPARAM key;
};
constexpr NamedKey kKeys[] = {
    {"enter", WM_KEYDOWN, VK_RETURN},
    {"escape", WM_KEYDOWN, VK_ESCAPE},
    {"tab", WM_KEYDOWN, kKeyTab},
    {"left", WM_KEYDOWN, kKeyLeft},
    {"right", WM_KEYDOWN, kKeyRight},
    {"up", WM_KEYDOWN, kKeyUp},
    {"down", WM_KEYDOWN, kKeyDown},
    {"home", WM_KEYDOWN, kKeyHome},
    {"end", WM_KEYDOWN, kKeyEnd},
    {"pageup", WM_KEYDOWN, kKeyPageUp},
    {"pagedown", WM_KEYDOWN, kKeyPageDown},
    {"backspace", kCharMessage, kCharBackspace},
    {"delete", WM_KEYDOWN, kKeyDelete},
    {"f1", WM_HELP, 0},
    {"f2", WM_KEYDOWN, kKeyF2},
};

void typeCharacter(Toolkit& toolkit, wchar_t character) {
    toolkit.balloons().dismiss();
    toolkit.windows().input(nullptr, kCharMessage, static_cast<WPARAM>(character), 0);
}

}  // namespace

bool focusField(Toolkit& toolkit, HWND field) {
    requireOnScreen(toolkit, field);
    return clickAt(toolkit, field, middleOf(toolkit, field)) && toolkit.windows().focus() == field;
}

void typeText(Toolkit& toolkit, std::wstring_view text) {
    for (const wchar_t character : text)
        typeCharacter(toolkit, character);
}

void replaceText(Toolkit& toolkit, std::wstring_view text) {
    typeCharacter(toolkit, kCharSelectAll);
    if (text.empty())
        typeCharacter(toolkit, kCharBackspace);
    typeText(toolkit, text);
}

void pressKey(Toolkit& toolkit, std::string_view name, HWND window) {
    const auto* const key =
        std::find_if(std::begin(kKeys), std::end(kKeys),
                     [name](const NamedKey& each) { return name == each.name; });
    if (key == std::end(kKeys))
        throw GestureError("there is no key \"" + std::string(name) + "\"");
    toolkit.balloons().dismiss();
    toolkit.windows().input(window, key->message, key->key, 0);
}

void holdKey(Toolkit& toolkit, std::string_view name, bool down) {
    if (name != "shift")
        throw GestureError("there is no key \"" + std::string(name) + "\" to hold");
    toolkit.windows().keys().hold(VK_SHIFT, down);
}

std::vector<std::string> keyNames() {
    std::vector<std::string> names;
    for (const NamedKey& key : kKeys)
        names.emplace_back(key.name);
    return names;
}

void blur(Toolkit& toolkit) {
    const HWND view = toolkit.frame().drawingView().m_hWnd;
    clickAt(toolkit, view, middleOf(toolkit, view));
}

}  // namespace workbench::gestures
