#include "workbench/base/text.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/gestures/tree_gestures.h"
#include "workbench/script/handles.h"
#include "workbench/script/lua_values.h"
#include "workbench/script/menu_method.h"
#include "workbench/script/script_error.h"
#include "workbench/toolkit/dropdowns.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <lua.hpp>

namespace workbench::script {

namespace {

WindowSystem& windows(Session& session) {
    return session.workbench().windows();
}

/// The tree that the handle's control has dropped down; throws GestureError if it has none on show.
HWND droppedTree(Session& session, const Arguments& arguments) {
    const HWND tree = findDroppedTree(windows(session), controlOf(session, arguments));
    gestures::treeOf(session.toolkit(), tree);
    return tree;
}

Value nodesBelow(const TreeWidget& tree, HTREEITEM parent) {
    Value::List nodes;
    for (const HTREEITEM item : tree.items().childrenOf(parent)) {
        const TreeItem& node = *tree.items().find(item);
        nodes.emplace_back(Value::Table{{"text", toUtf8(node.text)},
                                        {"expanded", node.isOpen},
                                        {"selected", tree.selected() == item},
                                        {"nodes", nodesBelow(tree, item)}});
    }
    return nodes;
}

int tree(Session& session, Arguments& arguments) {
    const HWND shown = droppedTree(session, arguments);
    push(arguments.lua(), nodesBelow(gestures::treeOf(session.toolkit(), shown), nullptr));
    return 1;
}

/// Result: the node's handle; nil if there is none under that path.
int node(Session& session, Arguments& arguments) {
    const std::string path = arguments.text(1);
    const HWND shown = droppedTree(session, arguments);
    const TreeItems& items = gestures::treeOf(session.toolkit(), shown).items();
    if (gestures::findNode(items, toWide(path)) == nullptr)
        lua_pushnil(arguments.lua());
    else
        pushNode(arguments, path);
    return 1;
}

/// Result: the check below the tree, as it is then.
int invert(Session& session, Arguments& arguments) {
    const HWND check = findButtonBeside(windows(session), droppedTree(session, arguments));
    if (check == nullptr)
        throw ScriptError("there is no check below the tree");
    const auto isChecked = [&session, check] {
        return windows(session).send(check, BM_GETCHECK, 0, 0) != 0;
    };
    if (arguments.has(1) && arguments.truth(1) != isChecked()) {
        gestures::clickAt(session.toolkit(), check, gestures::middleOf(session.toolkit(), check));
        session.settle();
    }
    lua_pushboolean(arguments.lua(), isChecked() ? 1 : 0);
    return 1;
}

int click(Session& session, Arguments& arguments) {
    const TreeNode clicked = nodeOf(session, arguments);
    const bool taken = gestures::clickNode(session.toolkit(), clicked.tree, clicked.item);
    session.settle();
    lua_pushboolean(arguments.lua(), taken ? 1 : 0);
    return 1;
}

int rename(Session& session, Arguments& arguments) {
    const std::string text = arguments.text(1);
    const TreeNode renamed = nodeOf(session, arguments);
    gestures::renameNode(session.toolkit(), renamed.tree, renamed.item, toWide(text));
    session.settle();
    return 0;
}

int menu(Session& session, Arguments& arguments) {
    const TreeNode pressed = nodeOf(session, arguments);
    const CPoint point = gestures::labelOf(session.toolkit(), pressed.tree, pressed.item);
    return runMenuMethod(session, arguments, pressed.tree, point);
}

int expanded(Session& session, Arguments& arguments) {
    const TreeNode asked = nodeOf(session, arguments);
    const TreeWidget& widget = gestures::treeOf(session.toolkit(), asked.tree);
    lua_pushboolean(arguments.lua(), widget.items().find(asked.item)->isOpen ? 1 : 0);
    return 1;
}

int selected(Session& session, Arguments& arguments) {
    const TreeNode asked = nodeOf(session, arguments);
    const TreeWidget& widget = gestures::treeOf(session.toolkit(), asked.tree);
    lua_pushboolean(arguments.lua(), widget.selected() == asked.item ? 1 : 0);
    return 1;
}

/// Result: where the node's picture comes from, such as "#1290:2"; nil if it shows none.
int icon(Session& session, Arguments& arguments) {
    const TreeNode asked = nodeOf(session, arguments);
    const SourcedPicture* const picture =
        gestures::treeOf(session.toolkit(), asked.tree).pictureOf(asked.item);
    if (picture == nullptr)
        lua_pushnil(arguments.lua());
    else
        lua_pushstring(arguments.lua(), picture->source.c_str());
    return 1;
}

}  // namespace

const std::vector<Call>& dropdownMethods() {
    static const std::vector<Call> calls{
        {"invert", invert, CallKind::Acts},
        {"node", node},
        {"tree", tree},
    };
    return calls;
}

const std::vector<Call>& nodeMethods() {
    static const std::vector<Call> calls{
        {"click", click, CallKind::Acts},
        {"expanded", expanded},
        {"icon", icon},
        {"menu", menu, CallKind::Acts},
        {"rename", rename, CallKind::Acts},
        {"selected", selected},
    };
    return calls;
}

}  // namespace workbench::script
