#include "workbench/gestures/menu_gestures.h"
#include "workbench/script/handles.h"
#include "workbench/script/menu_method.h"
#include "workbench/windows/window_system.h"

#include <lua.hpp>

namespace workbench::script {

namespace {

/// As `runMenuMethod`, on the panel's title.
int menu(Session& session, Arguments& arguments) {
    return runMenuMethod(session, arguments, panelOf(session, arguments).m_hWnd,
                         gestures::kOnTitle);
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
