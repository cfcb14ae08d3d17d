#include "workbench/core/journal.h"

#include <nlohmann/json.hpp>

namespace workbench {

namespace {

using Json = nlohmann::ordered_json;

Json toJson(const Value& value) {
    if (value.isBool())
        return value.asBool();
    if (value.isInteger())
        return value.asInteger();
    if (value.isReal())
        return value.asReal();
    if (value.isString())
        return value.asString();
    if (value.isList()) {
        Json list = Json::array();
        for (const Value& element : value.asList())
            list.push_back(toJson(element));
        return list;
    }
    if (value.isTable()) {
        Json table = Json::object();
        for (const Value::Member& member : value.asTable())
            table[member.name] = toJson(member.value);
        return table;
    }
    return nullptr;
}

}  // namespace

std::string toJsonLine(const JournalRecord& record) {
    Json line{{"t", record.time}, {"kind", record.kind}};
    for (const JournalRecord::Field& field : record.fields)
        line[field.name] = toJson(field.value);
    return line.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace workbench
