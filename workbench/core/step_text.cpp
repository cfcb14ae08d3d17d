#include "workbench/core/step_text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace workbench {

namespace {

std::string text(const JournalRecord& record, const char* field) {
    const Value& value = record.field(field);
    return value.isString() ? value.asString() : value.describe();
}

std::string change(const JournalRecord& record) {
    return record.field("old").describe() + " -> " + record.field("new").describe();
}

std::string describeCall(const JournalRecord& record) {
    std::string line = text(record, "name") + "(";
    const Value& arguments = record.field("args");
    if (arguments.isList()) {
        for (const Value& argument : arguments.asList()) {
            if (line.back() != '(')
                line += ", ";
            line += argument.describe();
        }
    }
    line += ")";
    return record.field("result").isNil() ? line : line + " = " + record.field("result").describe();
}

std::string describeMessage(const JournalRecord& record) {
    return text(record, "control") + " gets " + record.field("number").describe() + " (" +
           record.field("wparam").describe() + ", " + record.field("lparam").describe() + ")";
}

std::string describeVariable(const JournalRecord& record) {
    return text(record, "name") + ": " + change(record);
}

std::string describeControl(const JournalRecord& record) {
    return text(record, "name") + "." + text(record, "field") + ": " + change(record);
}

std::string describeItem(const JournalRecord& record) {
    return text(record, "id") + "." + text(record, "field") + ": " + change(record);
}

struct KindText {
    const char* kind;
    std::string (*describe)(const JournalRecord&);
};
constexpr std::array<KindText, 5> kKinds{{
    {"call", describeCall},
    {"control", describeControl},
    {"item", describeItem},
    {"message", describeMessage},
    {"var", describeVariable},
}};

std::string describeOther(const JournalRecord& record) {
    std::string line;
    for (const JournalRecord::Field& field : record.fields)
        line += (line.empty() ? "" : ", ") + field.name + " " + field.value.describe();
    return line;
}

std::string padded(std::string text, std::size_t width) {
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

}  // namespace

std::string describeStep(const JournalRecord& record) {
    std::string line = padded(std::to_string(record.time) + " ms", 8) + padded(record.kind, 9);
    for (const KindText& row : kKinds) {
        if (record.kind == row.kind)
            return line + row.describe(record);
    }
    return line + describeOther(record);
}

}  // namespace workbench
