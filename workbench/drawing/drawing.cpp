#include "workbench/drawing/drawing.h"

#include "workbench/drawing/drawing_defaults.h"
#include "workbench/drawing/drawing_sections.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench::drawing {

namespace {

void addSun(Database& database) {
    Sun sun;
    sun.name = "Sun";
    const ObjectId id = database.add(sun).id;
    Writing<Viewport> viewport(database, activeViewport(database));
    if (viewport) {
        viewport->sun = id;
    }
}

}  // namespace

std::unique_ptr<Drawing> makeNewDrawing(std::uint32_t serial) {
    auto drawing = std::make_unique<Drawing>(serial);
    for (const Section& section : kSections) {
        addDefaults(drawing->db, section.kind);
    }
    settleReferences(drawing->db);
    addSun(drawing->db);
    drawing->db.undoLog().clear();
    return drawing;
}

}  // namespace workbench::drawing
