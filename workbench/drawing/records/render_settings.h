#pragma once

#include "workbench/drawing/database/property.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// How a picture of the model is rendered.
struct RenderSettings {
    std::string name;
    std::string description;
    bool predefined = false;  // comes with the program; false for the user's own
    int samplingMin = -2;     // powers of four samples a pixel, -3 to 5
    int samplingMax = 0;      // likewise
    bool materials = true;
    bool shadows = true;
    bool rayTracing = true;
    int traceDepth = 5;
    bool globalIllumination = false;
    bool finalGathering = false;

    friend bool operator==(const RenderSettings&, const RenderSettings&) = default;
};

/// A named set of render settings.
struct RenderPreset : RenderSettings {
    static constexpr RecordKind kKind = RecordKind::RenderPreset;
    static const std::vector<Property<RenderPreset>>& properties();

    friend bool operator==(const RenderPreset&, const RenderPreset&) = default;
};

/// The settings in force. Their name is that of the preset they came from, from which they may
/// have drifted.
struct ActiveRenderSettings : RenderSettings {
    static constexpr RecordKind kKind = RecordKind::ActiveRenderSettings;
    static const std::vector<Property<ActiveRenderSettings>>& properties();

    friend bool operator==(const ActiveRenderSettings&, const ActiveRenderSettings&) = default;
};

/// What all renderings of a drawing have in common.
struct RenderGlobals {
    static constexpr RecordKind kKind = RecordKind::RenderGlobals;
    static const std::vector<Property<RenderGlobals>>& properties();

    int width = 640;      // pixels
    int height = 480;     // likewise
    int procedure = 0;    // 0 the view, 1 a part of it, 2 selected objects
    int destination = 0;  // 0 the render window, 1 the viewport
    bool saveEnabled = false;
    std::string saveFile;
    bool predefinedFirst = true;  // order of the two groups of presets in lists

    friend bool operator==(const RenderGlobals&, const RenderGlobals&) = default;
};

}  // namespace workbench::drawing
