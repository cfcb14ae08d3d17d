#include "workbench/script/handles.h"

#include "workbench/base/text.h"
#include "workbench/gestures/tree_gestures.h"
#include "workbench/script/lua_calls.h"
#include "workbench/script/script_error.h"
#include "workbench/toolkit/dropdowns.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/windows/window_system.h"

#include <lua.hpp>

#include <array>
#include <initializer_list>
#include <new>

namespace workbench::script {

namespace {

struct Handle {
    std::string name;
    int number;             // from 1
    std::string path = {};  // of a node: its labels
};

struct KindWords {
    const char* type;    // of the userdata
    const char* prefix;  // of its methods in errors
    const char* word;
    const char* one;  // the word with its article
};
constexpr std::array<KindWords, 4> kKinds{{
    {"workbench.item", "item:", "item", "an item"},
    {"workbench.panel", "panel:", "panel", "a panel"},
    {"workbench.control", "control:", "control", "a control"},
    {"workbench.node", "node:", "node", "a node"},
}};

const KindWords& wordsOf(HandleKind kind) {
    return kKinds[static_cast<std::size_t>(kind)];
}

int endHandle(lua_State* lua) {
    static_cast<Handle*>(lua_touserdata(lua, 1))->~Handle();
    return 0;
}

Handle* findHandle(const Arguments& arguments, HandleKind kind) {
    const int index = arguments.index(1) - 1;
    return static_cast<Handle*>(luaL_testudata(arguments.lua(), index, wordsOf(kind).type));
}

const Handle& handleOf(const Arguments& arguments, HandleKind kind) {
    const Handle* handle = findHandle(arguments, kind);
    if (handle == nullptr) {
        throw ScriptError(std::string("call it as a method of ") + wordsOf(kind).one);
    }
    return *handle;
}

[[noreturn]] void refuseGone(HandleKind kind, const Handle& handle) {
    throw ScriptError(std::string("the ") + wordsOf(kind).word + " \"" + handle.name +
                      "\" is gone");
}

template <class Things>
auto& pick(const Things& things, HandleKind kind, const Handle& handle) {
    const auto index = static_cast<std::size_t>(handle.number - 1);
    if (index >= things.size())
        refuseGone(kind, handle);
    return *things[index];
}

void push(lua_State* lua, HandleKind kind, const Handle& handle) {
    void* memory = lua_newuserdatauv(lua, sizeof(Handle), 0);
    new (memory) Handle(handle);
    luaL_setmetatable(lua, wordsOf(kind).type);
}

HWND windowOf(Session& session, HandleKind kind, const Handle& handle) {
    const HWND window = session.workbench().windows().findByName(handle.name, handle.number - 1);
    if (window == nullptr)
        refuseGone(kind, handle);
    return window;
}

/// The lists of methods must outlive the script.
void addKind(lua_State* lua, Session& session, HandleKind kind,
             std::initializer_list<const std::vector<Call>*> lists) {
    luaL_newmetatable(lua, wordsOf(kind).type);
    lua_newtable(lua);
    for (const std::vector<Call>* methods : lists)
        addCalls(lua, session, *methods, wordsOf(kind).prefix, true);
    refuseUnknownNames(lua, wordsOf(kind).prefix);
    lua_setfield(lua, -2, "__index");
    lua_pushcfunction(lua, endHandle);
    lua_setfield(lua, -2, "__gc");
    lua_pop(lua, 1);
}

}  // namespace

void pushHandle(lua_State* lua, HandleKind kind, const std::string& name, int number) {
    push(lua, kind, {name, number});
}

void pushNode(const Arguments& control, const std::string& path) {
    const Handle& handle = handleOf(control, HandleKind::Control);
    push(control.lua(), HandleKind::Node, {handle.name, handle.number, path});
}

CQrUiToolPanelItem& itemOf(Session& session, const Arguments& arguments) {
    const Handle& handle = handleOf(arguments, HandleKind::Item);
    return pick(findItems(session.workbench().windows(), toWide(handle.name)), HandleKind::Item,
                handle);
}

CQrUiPanel& panelOf(Session& session, const Arguments& arguments) {
    const Handle& handle = handleOf(arguments, HandleKind::Panel);
    return pick(findPanels(session.workbench().windows(), toWide(handle.name)), HandleKind::Panel,
                handle);
}

HWND controlOf(Session& session, const Arguments& arguments) {
    return windowOf(session, HandleKind::Control, handleOf(arguments, HandleKind::Control));
}

TreeNode nodeOf(Session& session, const Arguments& arguments) {
    const Handle& handle = handleOf(arguments, HandleKind::Node);
    const WindowSystem& windows = session.workbench().windows();
    const HWND tree = findDroppedTree(windows, windowOf(session, HandleKind::Control, handle));
    const HTREEITEM item =
        gestures::findNode(gestures::treeOf(session.toolkit(), tree).items(), toWide(handle.path));
    if (item == nullptr)
        throw ScriptError("the node \"" + handle.path + "\" is gone");
    return {tree, item};
}

std::string wordsOf(const Arguments& arguments) {
    for (const HandleKind kind :
         {HandleKind::Item, HandleKind::Panel, HandleKind::Control, HandleKind::Node}) {
        if (const Handle* handle = findHandle(arguments, kind)) {
            const std::string path = handle->path.empty() ? "" : " " + handle->path;
            return std::string(wordsOf(kind).word) + " " + handle->name + path;
        }
    }
    return {};
}

void addHandleKinds(lua_State* lua, Session& session) {
    addKind(lua, session, HandleKind::Item, {&itemMethods()});
    addKind(lua, session, HandleKind::Panel, {&panelMethods()});
    addKind(lua, session, HandleKind::Control, {&controlMethods(), &dropdownMethods()});
    addKind(lua, session, HandleKind::Node, {&nodeMethods()});
}

}  // namespace workbench::script
