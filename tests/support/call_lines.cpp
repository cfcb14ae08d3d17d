#include "tests/support/call_lines.h"

#include <algorithm>
#include <cstdint>

namespace support {

namespace {

std::string shown(const workbench::Value& argument) {
    if (argument.isBool())
        return argument.asBool() ? "true" : "false";
    if (argument.isInteger())
        return std::to_string(argument.asInteger());
    if (argument.isReal())
        return std::to_string(argument.asReal());
    if (!argument.isString())
        return "null";
    return argument == workbench::Value("object") ? "object" : '"' + argument.asString() + '"';
}

bool isCall(const workbench::JournalRecord& record) {
    return record.kind == "call";
}

}  // namespace

std::string callLine(const workbench::JournalRecord& call) {
    std::string line = call.field("name").asString() + '(';
    const char* separator = "";
    for (const workbench::Value& argument : call.field("args").asList()) {
        line += separator + shown(argument);
        separator = ", ";
    }
    return line + ')';
}

std::vector<std::string> callLines(const std::vector<workbench::JournalRecord>& records) {
    std::vector<std::string> lines;
    for (const workbench::JournalRecord& record : records) {
        if (isCall(record))
            lines.push_back(callLine(record));
    }
    return lines;
}

std::vector<std::string> callLines(const std::vector<workbench::JournalRecord>& records,
                                   const std::vector<std::string_view>& wanted) {
    std::vector<std::string> lines;
    for (const workbench::JournalRecord& record : records) {
        if (!isCall(record))
            continue;
        const std::string& name = record.field("name").asString();
        if (std::find(wanted.begin(), wanted.end(), name) != wanted.end())
            lines.push_back(callLine(record));
    }
    return lines;
}

std::vector<std::string> messageLines(const std::vector<workbench::JournalRecord>& records,
                                      std::string_view window, int number) {
    std::vector<std::string> lines;
    for (const workbench::JournalRecord& record : records) {
        if (record.kind != "message" || record.field("control").asString() != window ||
            record.field("number") != workbench::Value(number))
            continue;
        lines.push_back(std::to_string(number) + '(' + shown(record.field("wparam")) + ", " +
                        shown(record.field("lparam")) + ')');
    }
    return lines;
}

}  // namespace support
