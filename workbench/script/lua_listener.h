#pragma once

#include <hostapi/vxdashboard.h>

#include <vector>

struct lua_State;

namespace workbench::script {

class Session;

/// A listener to the dashboard that calls the functions of a table: `panelsWillUnload`,
/// `panelsUnloaded`, `panelsWillLoad`, `panelsLoaded`, `controlsWillBeReleased`,
/// `visibilityChanged`; missing ones are left out.
class LuaListener final : public VxDaDashboardReactor {
public:
    /// The listener of the table at a stack index: always the same for the same table. It lives as
    /// long as the script. Throws ScriptError for anything but a table.
    static LuaListener& of(Session& session, lua_State* lua, int index);

    /// All listeners that the script has made.
    static std::vector<LuaListener*> all(lua_State* lua);

    LuaListener(Session& session, lua_State* lua, int table)
        : m_session(session),
          m_lua(lua),
          m_table(table) {}

    // VxDaDashboardReactor:
    void panelsWillUnload() override { call("panelsWillUnload"); }
    void panelsUnloaded() override { call("panelsUnloaded"); }
    void panelsWillLoad() override { call("panelsWillLoad"); }
    void panelsLoaded() override { call("panelsLoaded"); }
    void controlsWillBeReleased() override { call("controlsWillBeReleased"); }
    void visibilityChanged(BOOL visible) override;

private:
    bool pushFunction(const char* name);
    void call(const char* name);
    void run(int arguments);

    Session& m_session;
    lua_State* m_lua;
    int m_table;  // the table's reference in the registry
};

}  // namespace workbench::script
