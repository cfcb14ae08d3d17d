#include "workbench/drawing/lookup.h"

#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/drawing/records/viewport.h"

#include <algorithm>

namespace workbench::drawing {

namespace {

const Viewport* lookAtActiveViewport(const Database& database) {
    return database.look<Viewport>(activeViewport(database));
}

/// The id if its object lives, else null.
ObjectId living(const Database& database, ObjectId id) {
    const DbObject* object = database.peek(id);
    return object == nullptr || object->isErased() ? ObjectId() : id;
}

}  // namespace

std::vector<ObjectId> viewportsOf(const Database& database, ObjectId layout) {
    std::vector<ObjectId> found = database.ids(RecordKind::Viewport);
    std::erase_if(found,
                  [&](ObjectId id) { return database.look<Viewport>(id)->layout.id != layout; });
    std::stable_sort(found.begin(), found.end(), [&](ObjectId left, ObjectId right) {
        return database.look<Viewport>(left)->number < database.look<Viewport>(right)->number;
    });
    return found;
}

ObjectId findViewport(const Database& database, ObjectId layout, int number) {
    return database.firstWhere<Viewport>([&](const Viewport& viewport) {
        return viewport.layout.id == layout && viewport.number == number;
    });
}

ObjectId activeLayout(const Database& database) {
    const auto* current = database.look<Current>(database.first(RecordKind::Current));
    return current == nullptr || current->tileMode ? ObjectId() : living(database, current->layout);
}

ObjectId activeViewport(const Database& database) {
    const auto* current = database.look<Current>(database.first(RecordKind::Current));
    if (current == nullptr) {
        return {};
    }
    if (current->tileMode) {
        return findViewport(database, {}, current->modelViewport);
    }
    const ObjectId layout = activeLayout(database);
    const auto* sheet = database.look<Layout>(layout);
    return sheet == nullptr ? ObjectId() : findViewport(database, layout, sheet->currentViewport);
}

ObjectId currentLayer(const Database& database) {
    const auto* current = database.look<Current>(database.first(RecordKind::Current));
    return current == nullptr ? ObjectId() : living(database, current->layer);
}

ObjectId activeSun(const Database& database) {
    const Viewport* viewport = lookAtActiveViewport(database);
    return viewport == nullptr ? ObjectId() : living(database, viewport->sun);
}

ObjectId activeBackground(const Database& database) {
    const Viewport* viewport = lookAtActiveViewport(database);
    return viewport == nullptr ? ObjectId() : living(database, viewport->background);
}

ObjectId activeVisualStyle(const Database& database) {
    const Viewport* viewport = lookAtActiveViewport(database);
    return viewport == nullptr ? ObjectId() : living(database, viewport->visualStyle);
}

}  // namespace workbench::drawing
