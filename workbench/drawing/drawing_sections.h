#pragma once

#include "workbench/drawing/database/record_kind.h"

#include <array>

namespace workbench::drawing {

/// How many objects of a kind a drawing has.
enum class SectionForm { Many, One };

/// A section of a drawing file, and the kind of its objects.
struct Section {
    const char* key;
    RecordKind kind;
    SectionForm form;
};

/// All sections, in an order in which nothing refers to what comes later.
inline constexpr std::array<Section, kRecordKindCount> kSections{{
    {"layers", RecordKind::Layer, SectionForm::Many},
    {"textStyles", RecordKind::TextStyle, SectionForm::Many},
    {"visualStyles", RecordKind::VisualStyle, SectionForm::Many},
    {"backgrounds", RecordKind::Background, SectionForm::Many},
    {"suns", RecordKind::Sun, SectionForm::Many},
    {"views", RecordKind::View, SectionForm::Many},
    {"layouts", RecordKind::Layout, SectionForm::Many},
    {"viewports", RecordKind::Viewport, SectionForm::Many},
    {"layerFilters", RecordKind::LayerFilters, SectionForm::One},
    {"layerStates", RecordKind::LayerState, SectionForm::Many},
    {"renderPresets", RecordKind::RenderPreset, SectionForm::Many},
    {"activeRenderSettings", RecordKind::ActiveRenderSettings, SectionForm::One},
    {"renderGlobals", RecordKind::RenderGlobals, SectionForm::One},
    {"geoLocation", RecordKind::GeoLocation, SectionForm::One},
    {"current", RecordKind::Current, SectionForm::One},
    {"entities", RecordKind::Entity, SectionForm::Many},
}};

/// True for the kinds whose objects are told apart by their names.
constexpr bool hasNames(RecordKind kind) {
    switch (kind) {
    case RecordKind::Layer:
    case RecordKind::TextStyle:
    case RecordKind::VisualStyle:
    case RecordKind::Background:
    case RecordKind::Sun:
    case RecordKind::View:
    case RecordKind::Layout:
    case RecordKind::LayerState:
    case RecordKind::RenderPreset:
        return true;
    default:
        return false;
    }
}

}  // namespace workbench::drawing
