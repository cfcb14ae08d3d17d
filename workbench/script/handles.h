#pragma once

#include "workbench/script/calls.h"

#include <hostapi/qrui18.h>

#include <string>

struct lua_State;

namespace workbench::script {

/// The kinds of things on the dashboard that a script can hold.
enum class HandleKind { Item, Panel, Control };

/// Pushes a handle of the n-th thing of a name. It names the thing rather than holds it, so that it
/// outlives a rebuild of the panels.
void pushHandle(lua_State* lua, HandleKind kind, const std::string& name, int number);

/// The thing that the handle in front of a method's arguments names. Throws ScriptError if it is
/// gone or the handle is of another kind.
CQrUiToolPanelItem& itemOf(Session& session, const Arguments& arguments);
CQrUiPanel& panelOf(Session& session, const Arguments& arguments);
HWND controlOf(Session& session, const Arguments& arguments);

/// Words for the handle's thing in gestures, such as `item ID_3DWalk`.
std::string wordsOf(const Arguments& arguments);

/// The methods of each kind.
const std::vector<Call>& itemMethods();
const std::vector<Call>& panelMethods();
const std::vector<Call>& controlMethods();

/// Registers the kinds of handle with their methods.
void addHandleKinds(lua_State* lua, Session& session);

}  // namespace workbench::script
