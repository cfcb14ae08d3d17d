#include "workbench/drawing/record_factory.h"

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/geo_location.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/layer_filters.h"
#include "workbench/drawing/records/layer_state.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/drawing/records/render_settings.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/drawing/records/text_style.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/drawing/records/visual_style.h"

namespace workbench::drawing {

namespace {

/// Makes the record of the list whose kind is asked for.
template <class... Data>
std::unique_ptr<DbObject> makeOneOf(RecordKind kind) {
    std::unique_ptr<DbObject> made;
    ((Data::kKind == kind ? void(made = std::make_unique<Record<Data>>()) : void()), ...);
    return made;
}

}  // namespace

std::unique_ptr<DbObject> makeRecord(RecordKind kind) {
    return makeOneOf<Layer, TextStyle, VisualStyle, Background, Sun, View, Layout, Viewport,
                     LayerFilters, LayerState, RenderPreset, ActiveRenderSettings, RenderGlobals,
                     GeoLocation, Entity, Current>(kind);
}

}  // namespace workbench::drawing
