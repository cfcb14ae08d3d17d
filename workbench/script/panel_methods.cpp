#include "workbench/base/text.h"
#include "workbench/gestures/menu_gestures.h"
#include "workbench/script/handles.h"
#include "workbench/script/lua_values.h"
#include "workbench/script/script_error.h"
#include "workbench/windows/window_system.h"

#include <lua.hpp>

namespace workbench::script {

namespace {

/// Adds each line's text, "-" for a separator; the lines of a popup follow it as "Popup/Line".
void addLines(const std::vector<MenuLine>& lines, const std::string& path, Value::List& texts,
              Value::Table& checked) {
    for (const MenuLine& line : lines) {
        const std::string text = line.separator ? path + "-" : path + toUtf8(line.text);
        texts.push_back(text);
        if (line.checked)
            checked.push_back({text, true});
        addLines(line.children, text + "/", texts, checked);
    }
}

/// Results without a path: the lines, and a table with true for each checked one.
int menu(Session& session, Arguments& arguments) {
    const HWND window = panelOf(session, arguments).m_hWnd;
    const auto path = arguments.optionalText(1);
    if (path) {
        gestures::chooseFromContextMenu(session.toolkit(), window, toWide(*path));
        session.settle();
        return 0;
    }
    Value::List texts;
    Value::Table checked;
    addLines(gestures::readContextMenu(session.toolkit(), window), "", texts, checked);
    push(arguments.lua(), Value(std::move(texts)));
    push(arguments.lua(), Value(std::move(checked)));
    return 2;
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
