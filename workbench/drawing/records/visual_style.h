#pragma once

#include "workbench/drawing/database/property.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// How the faces and edges of a model are shown. A negative opacity, overhang, jitter or
/// silhouette width means: switched off, the magnitude is remembered.
struct VisualStyle {
    static constexpr RecordKind kKind = RecordKind::VisualStyle;
    static const std::vector<Property<VisualStyle>>& properties();

    std::string name;
    std::string description;
    bool oneOff = false;  // belongs to one viewport and is not listed
    bool flat = false;    // drawn as plain lines, without any 3D treatment

    int faceStyle = 1;        // 0 none, 1 real, 2 warm and cool
    int lightingQuality = 1;  // 0 faceted, 1 smooth, 2 smoothest
    int faceColorMode = 0;    // 0 regular, 1 one colour, 2 tinted, 3 desaturated
    Colour monoColor = Colour::trueColour(255, 255, 255);
    int faceOpacity = -60;    // percent, signed
    int faceHighlight = -30;  // signed
    int shadows = 0;          // 0 none, 1 on the ground, 2 full
    int materialMode = 0;     // 0 none, 1 materials, 2 materials and textures
    bool backgrounds = true;

    int edges = 1;  // 0 none, 1 isolines, 2 facet edges
    Colour edgeColor = Colour::byEntity();
    int edgeOverhang = -6;  // pixels, signed
    int edgeJitter = -2;    // 0 to 3, signed
    int edgeWidth = 1;      // pixels
    int edgeSmooth = 1;     // crease angle in degrees
    bool silhouetteEdges = false;
    int silhouetteWidth = 5;  // pixels, 1 to 25
    Colour silhouetteColor = Colour::byIndex(7);
    bool obscuredEdges = false;
    Colour obscuredColor = Colour::byEntity();
    bool intersectionEdges = false;
    Colour intersectionColor = Colour::byIndex(7);

    friend bool operator==(const VisualStyle&, const VisualStyle&) = default;
};

}  // namespace workbench::drawing
