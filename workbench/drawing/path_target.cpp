#include "workbench/drawing/path_target.h"

#include "workbench/base/text.h"
#include "workbench/drawing/drawing_sections.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_text.h"
#include "workbench/drawing/records/viewport.h"

#include <array>
#include <charconv>

namespace workbench::drawing {

namespace {

struct Root {
    const char* step;
    RecordKind kind;
};

/// First steps that name a table.
constexpr std::array<Root, 9> kTables{{
    {"layers", RecordKind::Layer},
    {"textstyles", RecordKind::TextStyle},
    {"visualstyles", RecordKind::VisualStyle},
    {"backgrounds", RecordKind::Background},
    {"suns", RecordKind::Sun},
    {"views", RecordKind::View},
    {"layouts", RecordKind::Layout},
    {"states", RecordKind::LayerState},
    {"entities", RecordKind::Entity},
}};

/// First steps that name the one object of its kind.
constexpr std::array<Root, 3> kSingles{{
    {"current", RecordKind::Current},
    {"geo", RecordKind::GeoLocation},
    {"filters", RecordKind::LayerFilters},
}};

/// First steps that name what the active viewport shows.
constexpr std::array<Root, 3> kActives{{
    {"sun", RecordKind::Sun},
    {"background", RecordKind::Background},
    {"visualstyle", RecordKind::VisualStyle},
}};

PathTarget objectTarget(RecordKind kind, ObjectId id, std::size_t used, const std::string& name) {
    PathTarget target;
    target.form = id.isNull() ? PathTarget::Form::Missing : PathTarget::Form::Object;
    target.kind = kind;
    target.id = id;
    target.used = used;
    target.name = name;
    return target;
}

PathTarget tableTarget(RecordKind kind, std::size_t used) {
    PathTarget target;
    target.kind = kind;
    target.used = used;
    return target;
}

ObjectId entityOfNumber(const Database& database, int number) {
    if (number <= 0) {
        return {};
    }
    const ObjectId id(database.serial(), static_cast<std::uint32_t>(number));
    const DbObject* object = database.peek(id);
    const bool found =
        object != nullptr && object->kind() == RecordKind::Entity && !object->isErased();
    return found ? id : ObjectId();
}

/// A viewport of a layout or a tile, by the step behind "viewports".
PathTarget viewportTarget(const Database& database, ObjectId layout,
                          const std::vector<std::string>& steps, std::size_t used) {
    if (steps.size() == used || equalNoCase(steps[used], "count")) {
        PathTarget target = tableTarget(RecordKind::Viewport, used);
        target.id = layout;
        return target;
    }
    const std::string& step = steps[used];
    if (equalNoCase(step, "current")) {
        return objectTarget(RecordKind::Viewport, activeViewport(database), used + 1, step);
    }
    const int number = stepNumber(step);
    if (number < 1) {
        failPath(steps, used,
                 "expected the number of a viewport or \"current\", got \"" + step + "\"");
    }
    return objectTarget(RecordKind::Viewport, findViewport(database, layout, number), used + 1,
                        step);
}

PathTarget namedTarget(const Database& database, RecordKind kind,
                       const std::vector<std::string>& steps, std::size_t used) {
    if (steps.size() == used) {
        return tableTarget(kind, used);
    }
    const std::string& step = steps[used];
    const ObjectId id =
        hasNames(kind) ? database.find(kind, step) : entityOfNumber(database, stepNumber(step));
    if (id.isNull() && equalNoCase(step, "count")) {
        return tableTarget(kind, used);
    }
    const bool hasViewports = kind == RecordKind::Layout && !id.isNull() &&
                              steps.size() > used + 1 && equalNoCase(steps[used + 1], "viewports");
    return hasViewports ? viewportTarget(database, id, steps, used + 2)
                        : objectTarget(kind, id, used + 1, step);
}

PathTarget renderTarget(const Database& database, const std::vector<std::string>& steps) {
    if (steps.size() > 1 && equalNoCase(steps[1], "active")) {
        return objectTarget(RecordKind::ActiveRenderSettings,
                            database.first(RecordKind::ActiveRenderSettings), 2, {});
    }
    if (steps.size() > 1 && equalNoCase(steps[1], "presets")) {
        return namedTarget(database, RecordKind::RenderPreset, steps, 2);
    }
    return objectTarget(RecordKind::RenderGlobals, database.first(RecordKind::RenderGlobals), 1,
                        {});
}

/// What the active viewport shows. A sun is found on any viewport's account: the first one counts
/// when the active viewport has none.
PathTarget activeTarget(const Database& database, RecordKind kind) {
    ObjectId id = kind == RecordKind::Sun          ? activeSun(database)
                  : kind == RecordKind::Background ? activeBackground(database)
                                                   : activeVisualStyle(database);
    if (id.isNull() && kind == RecordKind::Sun) {
        id = database.first(kind);
    }
    PathTarget target = objectTarget(kind, id, 1, {});
    target.isActive = true;
    return target;
}

}  // namespace

PathTarget resolvePath(const Database& database, const std::vector<std::string>& steps) {
    const std::string& first = steps.front();
    if (equalNoCase(first, "viewports")) {
        return viewportTarget(database, activeLayout(database), steps, 1);
    }
    if (equalNoCase(first, "render")) {
        return renderTarget(database, steps);
    }
    for (const Root& root : kTables) {
        if (equalNoCase(first, root.step)) {
            return namedTarget(database, root.kind, steps, 1);
        }
    }
    for (const Root& root : kSingles) {
        if (equalNoCase(first, root.step)) {
            return objectTarget(root.kind, database.first(root.kind), 1, {});
        }
    }
    for (const Root& root : kActives) {
        if (equalNoCase(first, root.step)) {
            return activeTarget(database, root.kind);
        }
    }
    failPath(steps, 0, "a drawing has no \"" + first + "\"");
}

void failPath(const std::vector<std::string>& steps, std::size_t used, const std::string& reason) {
    std::string whole;
    std::string led;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const bool isWord = steps[i].find('.') == std::string::npos;
        const std::string word = isWord ? (i == 0 ? "" : ".") + steps[i] : "[\"" + steps[i] + "\"]";
        whole += word;
        if (i < used) {
            led += word;
        }
    }
    throw PathError("path \"" + whole + "\": " + reason +
                    (led.empty() ? "" : " (led as far as \"" + led + "\")"));
}

int stepNumber(const std::string& step) {
    int number = -1;
    const char* end = step.data() + step.size();
    const auto parsed = std::from_chars(step.data(), end, number);
    return parsed.ec == std::errc() && parsed.ptr == end && number >= 0 ? number : -1;
}

}  // namespace workbench::drawing
