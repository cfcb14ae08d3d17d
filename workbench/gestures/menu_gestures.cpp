#include "workbench/gestures/menu_gestures.h"

#include "workbench/base/text.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/toolkit.h"

#include <optional>
#include <utility>

namespace workbench::gestures {

namespace {

constexpr CPoint kOnTitle{40, 6};  // on the title bar of panels and palette sets

void openMenu(Toolkit& toolkit, HWND window, PopupMenus::Chooser chooser) {
    requireOnScreen(toolkit, window);
    toolkit.menus().answerNext(std::move(chooser));
    toolkit.mouse().contextMenu(window, kOnTitle);
    if (!toolkit.menus().isAnswerWaiting())
        return;
    toolkit.menus().answerNext(nullptr);
    throw GestureError("no context menu opens");
}

}  // namespace

std::vector<MenuLine> readContextMenu(Toolkit& toolkit, HWND window) {
    std::vector<MenuLine> read;
    openMenu(toolkit, window, [&read](const std::vector<MenuLine>& lines) {
        read = lines;
        return std::optional<UINT>();
    });
    return read;
}

void chooseFromContextMenu(Toolkit& toolkit, HWND window, const std::wstring& path) {
    bool found = false;
    openMenu(toolkit, window, [&](const std::vector<MenuLine>& lines) -> std::optional<UINT> {
        const MenuLine* const line = findMenuLine(lines, path);
        found = line != nullptr;
        if (line == nullptr || line->disabled || line->command == 0)
            return {};
        return line->command;
    });
    if (!found)
        throw GestureError("the menu has no line \"" + toUtf8(path) + "\"");
}

}  // namespace workbench::gestures
