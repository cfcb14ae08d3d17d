#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/text_style.h"
#include "workbench/editor/variables/drawing_access.h"

namespace workbench {

namespace {

using drawing::Current;
using drawing::RecordKind;

drawing::ObjectId currentRecord(const drawing::Database& database) {
    return database.first(RecordKind::Current);
}

drawing::ObjectId currentStyle(const drawing::Database& database) {
    const auto* current = database.look<Current>(currentRecord(database));
    return current == nullptr ? drawing::ObjectId() : current->textStyle.id;
}

Value readTextStyle(const VariableScope& scope) {
    return readRecord<drawing::TextStyle>(
        scope, currentStyle, [](const drawing::TextStyle& style) { return style.name; });
}

bool writeTextStyle(const VariableScope& scope, const Value& value) {
    if (scope.database == nullptr)
        return false;
    const drawing::ObjectId style = scope.database->find(RecordKind::TextStyle, value.asString());
    return !style.isNull() && writeRecord<Current>(scope, currentRecord, [style](Current& current) {
        current.textStyle = style;
    });
}

/// With a style that has a height of its own, TEXTSIZE is that height.
std::optional<ImpliedValue> heightOfStyle(const VariableScope& scope) {
    const Value height = readRecord<drawing::TextStyle>(
        scope, currentStyle, [](const drawing::TextStyle& style) { return style.height; });
    if (height.isNil() || height.asReal() <= 0.0)
        return {};
    return ImpliedValue{L"TEXTSIZE", height};
}

}  // namespace

void addTextVariables(VariableTable& table) {
    using enum VariableType;
    using enum VariableHome;
    table.insert(table.end(),
                 {
                     {.name = L"TEXTSIZE", .type = Real, .initial = 2.5, .range = {{1e-9, 1e99}}},
                     {.name = L"TEXTSTYLE",
                      .type = String,
                      .home = Record,
                      .get = readTextStyle,
                      .set = writeTextStyle,
                      .implied = heightOfStyle},
                 });
}

}  // namespace workbench
