#include "workbench/audit/audit.h"
#include "workbench/script/calls.h"
#include "workbench/script/lua_values.h"
#include "workbench/script/script_error.h"

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

int auditAll(Session& session, Arguments& arguments) {
    Value::List list;
    for (const AuditFinding& finding : audit(session.workbench()))
        list.push_back(Value::Table{{"control", finding.control},
                                    {"field", finding.field},
                                    {"shown", finding.shown},
                                    {"expected", finding.expected}});
    push(arguments.lua(), Value(std::move(list)));
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
