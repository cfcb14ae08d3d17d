#include "workbench/audit/audit.h"
#include "workbench/script/calls.h"
#include "workbench/script/lua_values.h"
#include "workbench/script/script_error.h"

#include <lua.hpp>

namespace workbench::script {

namespace {

Value fieldsOf(const JournalRecord& record) {
    Value::Table table;
    for (const JournalRecord::Field& field : record.fields)
        table.push_back({field.name, field.value});
    return table;
}

Value recordOf(const JournalRecord& record) {
    Value::Table table{{"t", record.time}, {"kind", record.kind}};
    for (const JournalRecord::Field& field : record.fields)
        table.push_back({field.name, field.value});
    return table;
}

int sent(Session& session, Arguments& arguments) {
    Value::List list;
    for (const JournalRecord& record : session.takeSent())
        list.push_back(fieldsOf(record));
    push(arguments.lua(), Value(std::move(list)));
    return 1;
}

Value::Table tableOf(const AuditFinding& finding) {
    return {{"control", finding.control},
            {"field", finding.field},
            {"shown", finding.shown},
            {"expected", finding.expected}};
}

/// Gives the table on top of the stack a field that is read by name alone: the table stays as long,
/// and as empty, as it was.
void addHiddenField(lua_State* lua, const char* name, const Value& value) {
    lua_newtable(lua);
    push(lua, Value::Table{{name, value}});
    lua_setfield(lua, -2, "__index");
    lua_setmetatable(lua, -2);
}

int auditAll(Session& session, Arguments& arguments) {
    const AuditResult result = auditWithStale(session.workbench());
    Value::List findings;
    for (const AuditFinding& finding : result.findings)
        findings.push_back(tableOf(finding));
    Value::List stale;
    for (const StaleFinding& each : result.stale) {
        Value::Table table = tableOf(each.finding);
        table.push_back({"reason", each.reason});
        stale.push_back(std::move(table));
    }
    push(arguments.lua(), Value(std::move(findings)));
    addHiddenField(arguments.lua(), "stale", Value(std::move(stale)));
    return 1;
}

int journal(Session& session, Arguments& arguments) {
    Value::List list;
    const std::string kind = arguments.optionalText(1).value_or("");
    for (const JournalRecord& record : session.workbench().journal().take(kind)) {
        list.push_back(recordOf(record));
    }
    push(arguments.lua(), Value(std::move(list)));
    return 1;
}

int snapshot(Session& session, Arguments& arguments) {
    const std::string file = arguments.text(1);
    const Workbench::Photographer& photographer = session.workbench().photographer();
    if (!photographer)
        throw ScriptError("no picture of \"" + file +
                          "\": pictures need the desktop, and this workbench has no window");
    photographer(file);
    return 0;
}

}  // namespace

const std::vector<Call>& recordCalls() {
    static const std::vector<Call> calls{
        {"audit", auditAll},
        {"journal", journal},
        {"sent", sent},
        {"snapshot", snapshot},
    };
    return calls;
}

}  // namespace workbench::script
