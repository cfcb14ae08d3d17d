#include "workbench/windows/window_parts.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace workbench {

namespace {

struct PartWord {
    std::string_view className;
    std::string_view word;
};

constexpr PartWord kPartWords[] = {
    {"CQrUiComboCtrl", "combo"},
    {"CQrUiProgSliderCtrl", "slider"},
    {"CQrUiInputEditCtrl", "edit"},
    {"CQrUiQuickStartLink", "link"},
};

/// What a window of a class is called as a part; other classes by their own name.
std::string_view partWord(const Window& window) {
    for (const PartWord& row : kPartWords) {
        if (row.className == window.className)
            return row.word;
    }
    return window.className;
}

/// The fields of a strip are called after coordinates, by their places in it; others by no such name.
std::string_view coordinateName(const WindowTree& windows, HWND field) {
    constexpr std::string_view kNames[] = {"x", "y", "z"};
    const Window* const strip = windows.find(windows.find(field)->parent);
    if (strip == nullptr || strip->className != "CQrUiCtrlContainer")
        return {};
    const auto place = std::find(strip->children.begin(), strip->children.end(), field);
    const auto index = static_cast<std::size_t>(place - strip->children.begin());
    return index < std::size(kNames) ? kNames[index] : std::string_view();
}

}  // namespace

std::string partName(const WindowTree& windows, HWND window) {
    const HWND owner = windows.owner(window);
    if (owner == nullptr || owner == window)
        return {};
    if (const std::string_view coordinate = coordinateName(windows, window); !coordinate.empty())
        return std::string(coordinate);
    const std::string_view word = partWord(*windows.find(window));
    int number = 0;
    for (const HWND part : windows.descendants(owner)) {
        if (windows.owner(part) != owner || partWord(*windows.find(part)) != word)
            continue;
        ++number;
        if (part == window)
            break;
    }
    return std::string(word) + (number > 1 ? std::to_string(number) : std::string());
}

HWND findPart(const WindowTree& windows, HWND owner, const std::string& part) {
    for (const HWND window : windows.descendants(owner)) {
        if (windows.owner(window) == owner && partName(windows, window) == part)
            return window;
    }
    return nullptr;
}

std::string journalName(const WindowTree& windows, const Window& window) {
    if (!window.name.empty())
        return window.name;
    if (window.className == "CFrameWnd")
        return "MainFrame";
    return window.className == "CQrToolTipCtrl" ? windows.ownerName(window.handle) + ".tooltip"
                                                : std::string();
}

}  // namespace workbench
