#include "workbench/gestures/menu_gestures.h"

#include "workbench/base/text.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/toolkit.h"

#include <optional>
#include <utility>

namespace workbench::gestures {

namespace {

void openMenu(Toolkit& toolkit, HWND window, CPoint point, PopupMenus::Chooser chooser) {
    requireOnScreen(toolkit, window);
    toolkit.menus().answerNext(std::move(chooser));
    toolkit.mouse().contextMenu(window, point);
    if (!toolkit.menus().isAnswerWaiting())
        return;
    toolkit.menus().answerNext(nullptr);
    throw GestureError("no context menu opens");
}

void addLines(const std::vector<MenuLine>& menu, const std::wstring& path,
              std::vector<PlacedLine>& all) {
    for (const MenuLine& line : menu) {
        all.push_back({line.separator ? path + L"-" : path + line.text, &line});
        addLines(line.children, path + line.text + L"/", all);
    }
}

/// What choosing a line answers the menu; nothing if a user can't choose it.
std::optional<UINT> answerOf(const MenuLine& line) {
    if (line.disabled || line.command == 0)
        return {};
    return line.command;
}

}  // namespace

std::vector<PlacedLine> linesInOrder(const std::vector<MenuLine>& menu) {
    std::vector<PlacedLine> all;
    addLines(menu, {}, all);
    return all;
}

std::vector<MenuLine> readContextMenu(Toolkit& toolkit, HWND window, CPoint point) {
    std::vector<MenuLine> read;
    openMenu(toolkit, window, point, [&read](const std::vector<MenuLine>& lines) {
        read = lines;
        return std::optional<UINT>();
    });
    return read;
}

void chooseFromContextMenu(Toolkit& toolkit, HWND window, const std::wstring& path, CPoint point) {
    bool found = false;
    openMenu(toolkit, window, point,
             [&](const std::vector<MenuLine>& lines) -> std::optional<UINT> {
                 const MenuLine* const line = findMenuLine(lines, path);
                 found = line != nullptr;
                 return line == nullptr ? std::nullopt : answerOf(*line);
             });
    if (!found)
        throw GestureError("the menu has no line \"" + toUtf8(path) + "\"");
}

void chooseLineOfContextMenu(Toolkit& toolkit, HWND window, std::size_t number, CPoint point) {
    std::size_t count = 0;
    openMenu(
        toolkit, window, point, [&](const std::vector<MenuLine>& lines) -> std::optional<UINT> {
            const std::vector<PlacedLine> all = linesInOrder(lines);
            count = all.size();
            return number < 1 || number > count ? std::nullopt : answerOf(*all[number - 1].line);
        });
    if (number < 1 || number > count) {
        throw GestureError("the menu has no line " + std::to_string(number) + ": it has " +
                           std::to_string(count));
    }
}

}  // namespace workbench::gestures
