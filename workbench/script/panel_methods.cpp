#include "workbench/base/text.h"
#include "workbench/gestures/menu_gestures.h"
#include "workbench/script/handles.h"
#include "workbench/script/lua_values.h"
#include "workbench/script/script_error.h"
#include "workbench/windows/window_system.h"

#include <lua.hpp>

namespace workbench::script {

namespace {

/// A table with true at the number, and under the text, of each line that has a mark.
void pushMarks(lua_State* lua, const std::vector<gestures::PlacedLine>& lines,
               bool MenuLine::*mark) {
    lua_newtable(lua);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!(lines[i].line->*mark))
            continue;
        lua_pushboolean(lua, 1);
        lua_rawseti(lua, -2, static_cast<lua_Integer>(i + 1));
        lua_pushboolean(lua, 1);
        lua_setfield(lua, -2, toUtf8(lines[i].path).c_str());
    }
}

int chooseLine(Session& session, Arguments& arguments, HWND window) {
    if (lua_isinteger(arguments.lua(), arguments.index(1)) != 0) {
        const std::int64_t number = arguments.integer(1);
        gestures::chooseLineOfContextMenu(session.toolkit(), window,
                                          number < 0 ? 0 : static_cast<std::size_t>(number));
    } else {
        gestures::chooseFromContextMenu(session.toolkit(), window, toWide(arguments.text(1)));
    }
    session.settle();
    return 0;
}

/// Results without a line: the lines, the marks of those that are disabled, and of those that are
/// checked.
int menu(Session& session, Arguments& arguments) {
    const HWND window = panelOf(session, arguments).m_hWnd;
    if (arguments.has(1))
        return chooseLine(session, arguments, window);
    const std::vector<MenuLine> read = gestures::readContextMenu(session.toolkit(), window);
    const std::vector<gestures::PlacedLine> lines = gestures::linesInOrder(read);
    std::vector<std::string> texts;
    texts.reserve(lines.size());
    for (const gestures::PlacedLine& each : lines)
        texts.push_back(toUtf8(each.path));
    push(arguments.lua(), texts);
    pushMarks(arguments.lua(), lines, &MenuLine::disabled);
    pushMarks(arguments.lua(), lines, &MenuLine::checked);
    return 3;
}

int visible(Session& session, Arguments& arguments) {
    const HWND window = panelOf(session, arguments).m_hWnd;
    lua_pushboolean(arguments.lua(), session.workbench().windows().isOnScreen(window) ? 1 : 0);
    return 1;
}

}  // namespace

const std::vector<Call>& panelMethods() {
    static const std::vector<Call> calls{
        {"menu", menu, CallKind::Acts},
        {"visible", visible},
    };
    return calls;
}

}  // namespace workbench::script
