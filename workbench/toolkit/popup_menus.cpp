#include "workbench/toolkit/popup_menus.h"

#include "workbench/base/text.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace workbench {

namespace {

/// The command of the queued label path. Throws std::invalid_argument if the menu has no such line.
std::optional<UINT> chooseByPath(const std::vector<MenuLine>& lines, const std::string& path) {
    const MenuLine* const line = findMenuLine(lines, toWide(path));
    if (line == nullptr)
        throw std::invalid_argument("the menu has no line \"" + path + "\"");
    if (line->disabled || line->command == 0)
        return {};
    return line->command;
}

bool holdsCommand(const std::vector<MenuLine>& lines, UINT command) {
    return std::any_of(lines.begin(), lines.end(), [command](const MenuLine& line) {
        return line.command == command || holdsCommand(line.children, command);
    });
}

/// Whether a command stands in a popup that can't be opened.
bool isBehindDisabled(const std::vector<MenuLine>& lines, UINT command) {
    return std::any_of(lines.begin(), lines.end(), [command](const MenuLine& line) {
        return line.disabled ? holdsCommand(line.children, command)
                             : isBehindDisabled(line.children, command);
    });
}

}  // namespace

const MenuLine* findMenuLine(const std::vector<MenuLine>& lines, std::wstring_view path) {
    for (const MenuLine& line : lines) {
        if (!line.separator && line.text == path)
            return &line;
    }
    for (const MenuLine& line : lines) {
        const std::size_t length = line.text.size();
        if (line.children.empty() || path.size() <= length || path.substr(0, length) != line.text ||
            path[length] != L'/')
            continue;
        if (const MenuLine* const found = findMenuLine(line.children, path.substr(length + 1)))
            return found;
    }
    return nullptr;
}

std::optional<UINT> PopupMenus::track(const std::vector<MenuLine>& lines) {
    const std::optional<UINT> chosen = ask(lines);
    return chosen && isBehindDisabled(lines, *chosen) ? std::nullopt : chosen;
}

std::optional<UINT> PopupMenus::ask(const std::vector<MenuLine>& lines) {
    if (m_next)
        return std::exchange(m_next, nullptr)(lines);
    if (const std::optional<Value> queued = m_answers.take("menu"); queued)
        return chooseByPath(lines, queued->asString());
    return m_presenter ? m_presenter(lines) : std::nullopt;
}

}  // namespace workbench
