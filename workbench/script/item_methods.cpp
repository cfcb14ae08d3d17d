#include "workbench/base/text.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/script/handles.h"
#include "workbench/script/lua_values.h"
#include "workbench/script/script_error.h"
#include "workbench/toolkit/lookup.h"

#include <lua.hpp>

namespace workbench::script {

namespace {

/// Result: whether the click found the item enabled.
int click(Session& session, Arguments& arguments) {
    CQrUiToolPanelItem& item = itemOf(session, arguments);
    lua_pushboolean(arguments.lua(), gestures::clickItem(session.toolkit(), item) ? 1 : 0);
    session.settle();
    return 1;
}

int state(Session& session, Arguments& arguments) {
    const ItemView view = viewOf(session.toolkit(), itemOf(session, arguments));
    Value::Table table{{"checked", view.checked},
                       {"disabled", view.disabled},
                       {"hidden", view.hidden},
                       {"name", toUtf8(view.name)}};
    if (!view.image.empty())
        table.push_back({"image", view.image});
    if (!view.tool.empty())
        table.push_back({"tool", toUtf8(view.tool)});
    push(arguments.lua(), Value(std::move(table)));
    return 1;
}

}  // namespace

const std::vector<Call>& itemMethods() {
    static const std::vector<Call> calls{
        {"click", click, CallKind::Acts},
        {"state", state},
    };
    return calls;
}

}  // namespace workbench::script
