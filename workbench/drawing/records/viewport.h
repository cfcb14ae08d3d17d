#pragma once

#include "workbench/drawing/database/property.h"
#include "workbench/drawing/records/layer_override.h"
#include "workbench/drawing/records/view_parameters.h"

#include <vector>

namespace workbench::drawing {

/// How the light of a scene becomes the brightness of a picture, with photometric lights.
struct ToneOperator {
    double brightness = 65.0;
    double contrast = 50.0;
    double midTones = 1.0;

    friend bool operator==(const ToneOperator&, const ToneOperator&) = default;
};

/// A window onto the model: a tile of model space, or a viewport of a layout.
struct Viewport {
    static constexpr RecordKind kKind = RecordKind::Viewport;
    static const std::vector<Property<Viewport>>& properties();

    /// Number of the viewport of a layout that is the sheet of paper itself.
    static constexpr int kPaperNumber = 1;

    int number = 2;                  // in its space: 1 is the sheet of a layout, others from 2
    Ref<RecordKind::Layout> layout;  // null: a tile of model space
    bool on = true;
    bool locked = false;             // the view may not be changed
    Vec3 lowerLeft;                  // on the sheet in millimetres, or as shares of the screen
    Vec3 upperRight{1.0, 1.0, 0.0};  // likewise
    ViewParameters view;
    Ref<RecordKind::View> appliedView;  // the named view that it shows; null when it has moved
    Ref<RecordKind::VisualStyle> visualStyle;
    Ref<RecordKind::Background> background;
    Ref<RecordKind::Sun> sun;
    double brightness = 0.0;  // -10 to 10, with generic lights
    double contrast = 0.0;    // likewise
    ToneOperator tone;
    std::vector<Ref<RecordKind::Layer>> frozenLayers;  // in this viewport only
    std::vector<LayerOverride> layerOverrides;         // one a layer at most

    bool isTile() const { return layout.id.isNull(); }
    bool isPaper() const { return !isTile() && number == kPaperNumber; }

    friend bool operator==(const Viewport&, const Viewport&) = default;
};

/// Freezes a layer in one viewport alone, or thaws it there.
void freezeInViewport(Viewport& viewport, ObjectId layer, bool frozen);
bool isFrozenInViewport(const Viewport& viewport, ObjectId layer);

}  // namespace workbench::drawing
