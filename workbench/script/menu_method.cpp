#include "workbench/script/menu_method.h"

#include "workbench/base/text.h"
#include "workbench/gestures/menu_gestures.h"
#include "workbench/script/lua_values.h"

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

int chooseLine(Session& session, Arguments& arguments, HWND window, CPoint point) {
    if (lua_isinteger(arguments.lua(), arguments.index(1)) != 0) {
        const std::int64_t number = arguments.integer(1);
        gestures::chooseLineOfContextMenu(session.toolkit(), window,
                                          number < 0 ? 0 : static_cast<std::size_t>(number), point);
    } else {
        gestures::chooseFromContextMenu(session.toolkit(), window, toWide(arguments.text(1)),
                                        point);
    }
    session.settle();
    return 0;
}

}  // namespace

int runMenuMethod(Session& session, Arguments& arguments, HWND window, CPoint point) {
    if (arguments.has(1))
        return chooseLine(session, arguments, window, point);
    const std::vector<MenuLine> read = gestures::readContextMenu(session.toolkit(), window, point);
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

}  // namespace workbench::script
