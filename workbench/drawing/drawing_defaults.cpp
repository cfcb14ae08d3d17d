#include "workbench/drawing/drawing_defaults.h"

#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/layer_filters.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/drawing/records/render_settings.h"
#include "workbench/drawing/records/text_style.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/drawing/records/visual_style.h"

namespace workbench::drawing {

namespace {

VisualStyle style(const char* name, int faces, int edges) {
    VisualStyle made;
    made.name = name;
    made.faceStyle = faces;
    made.edges = edges;
    return made;
}

void addVisualStyles(Database& database) {
    VisualStyle lines = style("2D Wireframe", 0, 1);
    lines.flat = true;
    database.add(lines);

    database.add(style("Wireframe", 0, 1));

    VisualStyle hidden = style("Hidden", 0, 2);
    hidden.silhouetteEdges = true;
    hidden.silhouetteWidth = 3;
    database.add(hidden);

    VisualStyle realistic = style("Realistic", 1, 0);
    realistic.lightingQuality = 2;
    realistic.materialMode = 2;
    database.add(realistic);

    VisualStyle conceptual = style("Conceptual", 2, 2);
    conceptual.silhouetteEdges = true;
    conceptual.silhouetteWidth = 3;
    database.add(conceptual);
}

RenderPreset preset(const char* name, int samplingMin, int samplingMax) {
    RenderPreset made;
    made.name = name;
    made.predefined = true;
    made.samplingMin = samplingMin;
    made.samplingMax = samplingMax;
    return made;
}

void addRenderPresets(Database& database) {
    RenderPreset draft = preset("Draft", -2, -1);
    draft.materials = false;
    draft.shadows = false;
    draft.rayTracing = false;
    database.add(draft);

    RenderPreset low = preset("Low", -1, 0);
    low.rayTracing = false;
    database.add(low);

    database.add(preset("Medium", -1, 1));

    RenderPreset high = preset("High", 0, 2);
    high.traceDepth = 7;
    high.finalGathering = true;
    database.add(high);

    RenderPreset best = preset("Presentation", 1, 3);
    best.traceDepth = 9;
    best.finalGathering = true;
    best.globalIllumination = true;
    database.add(best);
}

void addActiveRenderSettings(Database& database) {
    ActiveRenderSettings active;
    const auto* medium =
        database.look<RenderPreset>(database.find(RecordKind::RenderPreset, "Medium"));
    const auto* chosen =
        medium != nullptr ? medium
                          : database.look<RenderPreset>(database.first(RecordKind::RenderPreset));
    if (chosen != nullptr) {
        static_cast<RenderSettings&>(active) = *chosen;
    }
    database.add(active);
}

/// Adds a record whose defaults say all but its name.
template <class Data>
void addNamed(Database& database, const char* name) {
    Data data;
    data.name = name;
    database.add(std::move(data));
}

/// Adds a viewport that leaves a margin of the first layout's sheet.
void addViewportOnSheet(Database& database) {
    constexpr double kMargin = 10.0;  // millimetres
    const ObjectId layout = database.first(RecordKind::Layout);
    const auto* const paper = database.look<Layout>(layout);
    if (paper == nullptr)
        return;
    Viewport viewport;
    viewport.layout = layout;
    viewport.lowerLeft = {kMargin, kMargin, 0.0};
    viewport.upperRight = {paper->paperWidth - kMargin, paper->paperHeight - kMargin, 0.0};
    database.add(viewport);
}

void addMissingSheets(Database& database) {
    for (const ObjectId layout : database.ids(RecordKind::Layout)) {
        if (findViewport(database, layout, Viewport::kPaperNumber).isNull()) {
            Viewport sheet;
            sheet.number = Viewport::kPaperNumber;
            sheet.layout = layout;
            const auto* paper = database.look<Layout>(layout);
            sheet.upperRight = {paper->paperWidth, paper->paperHeight, 0.0};
            database.add(sheet);
        }
    }
}

void settleVisualStyles(Database& database) {
    const ObjectId style = database.first(RecordKind::VisualStyle);
    for (const ObjectId id : database.ids(RecordKind::Viewport)) {
        if (database.look<Viewport>(id)->visualStyle.id.isNull()) {
            Writing<Viewport>(database, id)->visualStyle = style;
        }
    }
}

void settleFilters(Database& database) {
    Writing<LayerFilters> filters(database, database.first(RecordKind::LayerFilters));
    if (filters)
        filters->addGenerated();
}

void settleCurrent(Database& database) {
    Writing<Current> current(database, database.first(RecordKind::Current));
    if (current->layer.id.isNull()) {
        current->layer = database.find(RecordKind::Layer, kLayerZero);
    }
    if (current->textStyle.id.isNull()) {
        current->textStyle = database.first(RecordKind::TextStyle);
    }
    if (current->layout.id.isNull()) {
        current->layout = database.first(RecordKind::Layout);
    }
}

}  // namespace

void addDefaults(Database& database, RecordKind kind) {
    switch (kind) {
    case RecordKind::Layer:
        addNamed<Layer>(database, kLayerZero);
        break;
    case RecordKind::TextStyle:
        addNamed<TextStyle>(database, kStandardTextStyle);
        break;
    case RecordKind::VisualStyle:
        addVisualStyles(database);
        break;
    case RecordKind::Layout:
        addNamed<Layout>(database, "Layout1");
        break;
    case RecordKind::Viewport:
        database.add(Viewport());
        addViewportOnSheet(database);
        break;
    case RecordKind::LayerFilters:
        database.add(LayerFilters());
        break;
    case RecordKind::RenderPreset:
        addRenderPresets(database);
        break;
    case RecordKind::ActiveRenderSettings:
        addActiveRenderSettings(database);
        break;
    case RecordKind::RenderGlobals:
        database.add(RenderGlobals());
        break;
    case RecordKind::Current:
        database.add(Current());
        break;
    case RecordKind::Background:
    case RecordKind::Sun:
    case RecordKind::View:
    case RecordKind::LayerState:
    case RecordKind::GeoLocation:
    case RecordKind::Entity:
    case RecordKind::Table:
        break;
    }
}

void settleReferences(Database& database) {
    addMissingSheets(database);
    settleVisualStyles(database);
    settleFilters(database);
    settleCurrent(database);
}

}  // namespace workbench::drawing
