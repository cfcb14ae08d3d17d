#include "workbench/editor/variables/sky_status.h"

#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

namespace {

using drawing::Background;
using drawing::Database;
using drawing::ObjectId;
using drawing::RecordKind;
using drawing::Sun;
using drawing::Viewport;
using drawing::Writing;

bool isSky(const Database& database, ObjectId background) {
    const auto* record = database.look<Background>(background);
    return record != nullptr && record->type == Background::kSky;
}

/// A sky of the drawing; one is added if there is none.
ObjectId findOrAddSky(Database& database) {
    for (const ObjectId id : database.ids(RecordKind::Background)) {
        if (isSky(database, id))
            return id;
    }
    Background sky;
    sky.name = "Sky";
    sky.type = Background::kSky;
    return database.add(sky).id;
}

bool setBackground(Database& database, ObjectId background) {
    Writing<Viewport> viewport(database, drawing::activeViewport(database));
    if (!viewport)
        return false;
    viewport->background = background;
    return true;
}

bool setIllumination(Database& database, bool illumination) {
    ensureSun(database);
    Writing<Sun> sun(database, activeOrOnlySun(database));
    if (!sun)
        return false;
    sun->sky.illumination = illumination;
    return true;
}

}  // namespace

int readSkyStatus(const Database& database) {
    if (!isSky(database, drawing::activeBackground(database)))
        return 0;
    const auto* sun = database.look<Sun>(activeOrOnlySun(database));
    return sun != nullptr && sun->sky.illumination ? 2 : 1;
}

bool writeSkyStatus(Database& database, int status) {
    if (status == readSkyStatus(database))
        return true;
    const drawing::UndoGroup together(database.undoLog(), "SKYSTATUS");
    if (status == 0)
        return setBackground(database, ObjectId());
    if (!isSky(database, drawing::activeBackground(database)) &&
        !setBackground(database, findOrAddSky(database)))
        return false;
    return setIllumination(database, status == 2);
}

ObjectId activeOrOnlySun(const Database& database) {
    const ObjectId active = drawing::activeSun(database);
    return active.isNull() ? database.first(RecordKind::Sun) : active;
}

void ensureSun(Database& database) {
    if (!drawing::activeSun(database).isNull())
        return;
    const drawing::UndoGroup together(database.undoLog(), "SUN");
    ObjectId sun = database.first(RecordKind::Sun);
    if (sun.isNull()) {
        Sun fresh;
        fresh.name = "Sun";
        sun = database.add(fresh).id;
    }
    if (Writing<Viewport> viewport(database, drawing::activeViewport(database)); viewport)
        viewport->sun = sun;
}

}  // namespace workbench
