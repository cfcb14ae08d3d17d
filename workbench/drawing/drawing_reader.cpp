#include "workbench/drawing/drawing_reader.h"

#include "workbench/base/input_error.h"
#include "workbench/base/json_parser.h"
#include "workbench/base/text.h"
#include "workbench/drawing/drawing_defaults.h"
#include "workbench/drawing/drawing_sections.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/record_factory.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/layer_filters.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/drawing/records/viewport.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace workbench::drawing {

namespace {

/// Variables that a file may not carry, since a section holds what they show.
struct HeldElsewhere {
    const char* variable;
    const char* place;
};

constexpr std::array<HeldElsewhere, 9> kHeldElsewhere{{
    {"CLAYER", "/current/layer"},
    {"CTAB", "/current/layout"},
    {"TEXTSTYLE", "/current/textStyle"},
    {"TILEMODE", "/current/tileMode"},
    {"CVPORT", "/current/modelViewport"},
    {"LATITUDE", "/geoLocation/latitude"},
    {"LONGITUDE", "/geoLocation/longitude"},
    {"NORTHDIRECTION", "/geoLocation/northDirection"},
    {"TIMEZONE", "/geoLocation/timeZone"},
}};

/// A place in the file for messages, with the JSON value that stands there.
class Place {
public:
    Place(const JsonValue& value, const std::string& file, std::string pointer)
        : m_value(&value),
          m_file(&file),
          m_pointer(std::move(pointer)) {}

    [[noreturn]] void fail(const std::string& reason) const {
        std::string place = *m_file + ":" + std::to_string(m_value->line);
        if (!m_pointer.empty()) {
            place += ": " + m_pointer;
        }
        throw InputError(place, reason);
    }

    const JsonValue& value() const { return *m_value; }

    std::vector<std::pair<std::string, Place>> members() const {
        require(JsonValue::Kind::Object, "an object");
        std::vector<std::pair<std::string, Place>> all;
        for (std::size_t i = 0; i < m_value->items.size(); ++i) {
            all.emplace_back(m_value->names[i], child(i, m_value->names[i]));
        }
        return all;
    }

    std::vector<Place> elements() const {
        require(JsonValue::Kind::Array, "an array");
        std::vector<Place> all;
        for (std::size_t i = 0; i < m_value->items.size(); ++i) {
            all.push_back(child(i, std::to_string(i)));
        }
        return all;
    }

private:
    void require(JsonValue::Kind kind, const char* what) const {
        if (m_value->kind != kind) {
            fail(std::string("expected ") + what);
        }
    }

    Place child(std::size_t index, const std::string& step) const {
        std::string escaped;
        for (const char letter : step) {
            escaped += letter == '~' ? "~0" : letter == '/' ? "~1" : std::string(1, letter);
        }
        return {m_value->items[index], *m_file, m_pointer + "/" + escaped};
    }

    const JsonValue* m_value;   // not owned
    const std::string* m_file;  // not owned
    std::string m_pointer;
};

Value numberValue(double number) {
    const bool whole = std::trunc(number) == number && std::abs(number) <= 9007199254740992.0;
    return whole ? Value(static_cast<std::int64_t>(number)) : Value(number);
}

Value plainValue(const JsonValue& json) {
    switch (json.kind) {
    case JsonValue::Kind::Null:
        break;
    case JsonValue::Kind::Boolean:
        return json.boolean;
    case JsonValue::Kind::Number:
        return numberValue(json.number);
    case JsonValue::Kind::String:
        return json.text;
    case JsonValue::Kind::Array: {
        Value::List list;
        for (const JsonValue& item : json.items) {
            list.push_back(plainValue(item));
        }
        return list;
    }
    case JsonValue::Kind::Object: {
        Value::Table table;
        for (std::size_t i = 0; i < json.items.size(); ++i) {
            table.push_back({json.names[i], plainValue(json.items[i])});
        }
        return table;
    }
    }
    return {};
}

/// Fills one drawing from one text. The drawing is handed out only when all of it was good.
class DrawingReader {
public:
    DrawingReader(const JsonValue& root, const std::string& file, std::uint32_t serial)
        : m_root(root, file, ""),
          m_drawing(std::make_unique<Drawing>(serial)) {}

    std::unique_ptr<Drawing> read() {
        checkTop();
        for (const Section& section : kSections) {
            readSection(section);
        }
        settleReferences(m_drawing->db);
        checkWhole();
        m_drawing->db.undoLog().clear();
        return std::move(m_drawing);
    }

private:
    void checkTop() {
        bool hasFormat = false;
        for (const auto& [key, place] : m_root.members()) {
            if (key == "format") {
                hasFormat = true;
                checkFormat(place);
            } else if (key == "variables") {
                readVariables(place);
            } else if (!isSection(key)) {
                place.fail("a drawing has no section \"" + key + "\"");
            }
        }
        if (!hasFormat) {
            m_root.fail(std::string("expected \"format\": \"") + kDrawingFormat + "\"");
        }
    }

    static void checkFormat(const Place& place) {
        const Value format = plainValue(place.value());
        if (!(format == Value(kDrawingFormat))) {
            place.fail(std::string("expected \"") + kDrawingFormat + "\", got " +
                       format.describe());
        }
    }

    static bool isSection(const std::string& key) {
        return std::any_of(kSections.begin(), kSections.end(),
                           [&key](const Section& section) { return key == section.key; });
    }

    void readVariables(const Place& variables) {
        for (const auto& [name, place] : variables.members()) {
            for (const HeldElsewhere& held : kHeldElsewhere) {
                if (equalNoCase(name, held.variable)) {
                    place.fail(name + " is kept at " + held.place);
                }
            }
            std::string capitals = name;
            std::transform(capitals.begin(), capitals.end(), capitals.begin(), [](char letter) {
                return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A')
                                                      : letter;
            });
            const Value value = plainValue(place.value());
            if (value.isNil() || value.isTable()) {
                place.fail("expected a number, a text, true, false or a point");
            }
            if (!m_drawing->variables.emplace(capitals, value).second) {
                place.fail("the variable " + capitals + " stands twice");
            }
        }
    }

    void readSection(const Section& section) {
        for (const auto& [key, place] : m_root.members()) {
            if (key != section.key) {
                continue;
            }
            if (section.form == SectionForm::One) {
                readObject(section.kind, place);
                return;
            }
            for (const Place& element : place.elements()) {
                readObject(section.kind, element);
            }
            return;
        }
        addDefaults(m_drawing->db, section.kind);
    }

    void readObject(RecordKind kind, const Place& place) {
        std::unique_ptr<DbObject> object = makeRecord(kind);
        for (const auto& [name, member] : place.members()) {
            try {
                object->setProperty(name, plainValue(member.value()), m_drawing->db);
            } catch (const ValueError& error) {
                member.fail(error.what());
            }
        }
        const std::string problem = problemOf(*object);
        if (!problem.empty()) {
            place.fail(problem);
        }
        if (m_drawing->db.add(std::move(object)).status == Status::DuplicateName) {
            place.fail(std::string("there is another ") + kindName(kind) + " of this name");
        }
    }

    std::string problemOf(const DbObject& object) const {
        if (hasNames(object.kind()) && object.name().empty()) {
            return std::string("a ") + kindName(object.kind()) + " needs a \"name\"";
        }
        if (const auto* entity = dynamic_cast<const Record<Entity>*>(&object)) {
            return entityProblem(entity->data());
        }
        if (const auto* viewport = dynamic_cast<const Record<Viewport>*>(&object)) {
            return viewportProblem(viewport->data());
        }
        if (const auto* filters = dynamic_cast<const Record<LayerFilters>*>(&object)) {
            return filtersProblem(filters->data());
        }
        return {};
    }

    std::string viewportProblem(const Viewport& viewport) const {
        if (viewport.isTile() && viewport.number == Viewport::kPaperNumber) {
            return "a tile of model space is numbered from 2";
        }
        if (!findViewport(m_drawing->db, viewport.layout, viewport.number).isNull()) {
            return "there is another viewport of number " + std::to_string(viewport.number) +
                   " in the same space";
        }
        return {};
    }

    static std::string filtersProblem(const LayerFilters& filters) {
        if (filters.root.kind != FilterKind::All) {
            return "the root of the filters is of kind \"all\"";
        }
        if (findFilter(filters.root, filters.current) == nullptr) {
            return "there is no layer filter named \"" + filters.current + "\"";
        }
        return {};
    }

    void checkWhole() const {
        const Database& db = m_drawing->db;
        if (db.find(RecordKind::Layer, kLayerZero).isNull()) {
            m_root.fail("a drawing needs the layer \"0\"");
        }
        for (const RecordKind kind :
             {RecordKind::TextStyle, RecordKind::VisualStyle, RecordKind::Layout}) {
            if (db.first(kind).isNull()) {
                m_root.fail(std::string("a drawing needs a ") + kindName(kind));
            }
        }
        checkCurrentViewports();
    }

    void checkCurrentViewports() const {
        const Database& db = m_drawing->db;
        const auto* current = db.look<Current>(db.first(RecordKind::Current));
        if (findViewport(db, {}, current->modelViewport).isNull()) {
            m_root.fail("there is no tile of number " + std::to_string(current->modelViewport));
        }
        for (const ObjectId id : db.ids(RecordKind::Layout)) {
            const auto* layout = db.look<Layout>(id);
            if (findViewport(db, id, layout->currentViewport).isNull()) {
                m_root.fail("the layout \"" + layout->name + "\" has no viewport of number " +
                            std::to_string(layout->currentViewport));
            }
        }
    }

    Place m_root;
    std::unique_ptr<Drawing> m_drawing;
};

}  // namespace

std::unique_ptr<Drawing> readDrawing(const std::filesystem::path& file, std::uint32_t serial) {
    const std::string text = readWholeFile(file);
    std::unique_ptr<Drawing> drawing = parseDrawing(text, file.string(), serial);
    drawing->fileName = file.string();
    return drawing;
}

std::unique_ptr<Drawing> parseDrawing(std::string_view text, const std::string& place,
                                      std::uint32_t serial) {
    const JsonValue root = parseJson(text, place);
    return DrawingReader(root, place, serial).read();
}

}  // namespace workbench::drawing
