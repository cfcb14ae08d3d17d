#include "workbench/drawing/drawing_writer.h"

#include "workbench/base/input_error.h"
#include "workbench/drawing/drawing_reader.h"
#include "workbench/drawing/drawing_sections.h"
#include "workbench/drawing/json_text.h"
#include "workbench/drawing/record_factory.h"

#include <fstream>
#include <system_error>

namespace workbench::drawing {

namespace {

/// The properties of an object that differ from those of a fresh one of its kind.
Value objectValue(const DbObject& object, const Database& database) {
    const std::unique_ptr<DbObject> fresh = makeRecord(object.kind());
    Value::Table table;
    for (const std::string_view name : object.propertyNames()) {
        Value value = object.property(name, database);
        if (!(value == fresh->property(name, database))) {
            table.push_back({std::string(name), std::move(value)});
        }
    }
    return table;
}

Value listValue(const Database& database, RecordKind kind) {
    Value::List list;
    for (const ObjectId id : database.ids(kind)) {
        list.push_back(objectValue(*database.peek(id), database));
    }
    return list;
}

void writeText(const std::filesystem::path& file, const std::string& text) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << text;
    stream.close();
    if (!stream) {
        throw InputError(file.string(), "the drawing can't be written there");
    }
}

}  // namespace

Value drawingValue(const Drawing& drawing) {
    const Database& db = drawing.db;
    Value::Table table{{"format", kDrawingFormat}};
    if (!drawing.variables.empty()) {
        Value::Table variables;
        for (const auto& [name, value] : drawing.variables) {
            variables.push_back({name, value});
        }
        table.push_back({"variables", variables});
    }
    for (const Section& section : kSections) {
        if (section.form == SectionForm::Many) {
            table.push_back({section.key, listValue(db, section.kind)});
        } else if (!db.first(section.kind).isNull()) {
            table.push_back({section.key, objectValue(*db.peek(db.first(section.kind)), db)});
        }
    }
    return table;
}

std::string drawingText(const Drawing& drawing) {
    return jsonText(drawingValue(drawing));
}

void saveDrawing(const Drawing& drawing, const std::filesystem::path& file) {
    std::filesystem::path fresh = file;
    fresh += ".new";
    writeText(fresh, drawingText(drawing));
    std::error_code failed;
    std::filesystem::rename(fresh, file, failed);
    if (failed) {
        std::error_code ignored;
        std::filesystem::remove(fresh, ignored);
        throw InputError(file.string(), "the drawing can't be written there");
    }
}

}  // namespace workbench::drawing
