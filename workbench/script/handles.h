#pragma once

#include "workbench/script/calls.h"

#include <hostapi/qrui18.h>
#include <hostapi/window/tree_ctrl.h>

#include <string>

struct lua_State;

namespace workbench::script {

/// The kinds of things on the dashboard that a script can hold.
enum class HandleKind { Item, Panel, Control, Node };

/// Pushes a handle of the n-th thing of a name. It names the thing rather than holds it, so that it
/// outlives a rebuild of the panels.
void pushHandle(lua_State* lua, HandleKind kind, const std::string& name, int number);
/// Pushes a handle of a node of the tree that a control has dropped down, by its path of labels.
/// `control` is that of the control's own handle, in front of a method's arguments.
void pushNode(const Arguments& control, const std::string& path);

/// A node of a tree on show.
struct TreeNode {
    HWND tree;
    HTREEITEM item;
};

/// The thing that the handle in front of a method's arguments names. Throws ScriptError if it is
/// gone or the handle is of another kind.
CQrUiToolPanelItem& itemOf(Session& session, const Arguments& arguments);
CQrUiPanel& panelOf(Session& session, const Arguments& arguments);
HWND controlOf(Session& session, const Arguments& arguments);
TreeNode nodeOf(Session& session, const Arguments& arguments);

/// Words for the handle's thing in gestures, such as `item ID_3DWalk`.
std::string wordsOf(const Arguments& arguments);

/// The methods of each kind.
const std::vector<Call>& itemMethods();
const std::vector<Call>& panelMethods();
const std::vector<Call>& controlMethods();
const std::vector<Call>& nodeMethods();
/// Those of a control that concern the tree that it drops down.
const std::vector<Call>& dropdownMethods();

/// Registers the kinds of handle with their methods.
void addHandleKinds(lua_State* lua, Session& session);

}  // namespace workbench::script
