#include "workbench/drawing/records/visual_style.h"

namespace workbench::drawing {

namespace {

// The settings are 16-bit numbers; one that means nothing is kept and shown as it is.
constexpr double kLeast = -32768.0;
constexpr double kMost = 32767.0;

}  // namespace

const std::vector<Property<VisualStyle>>& VisualStyle::properties() {
    using Style = VisualStyle;
    static const std::vector<Property<Style>> kProperties{
        property<Style, &Style::name>("name"),
        property<Style, &Style::description>("description"),
        property<Style, &Style::oneOff>("oneOff"),
        property<Style, &Style::flat>("flat"),
        property<Style, &Style::faceStyle>("faceStyle").within(kLeast, kMost),
        property<Style, &Style::lightingQuality>("lightingQuality").within(kLeast, kMost),
        property<Style, &Style::faceColorMode>("faceColorMode").within(kLeast, kMost),
        property<Style, &Style::monoColor>("monoColor"),
        property<Style, &Style::faceOpacity>("faceOpacity").within(kLeast, kMost),
        property<Style, &Style::faceHighlight>("faceHighlight").within(kLeast, kMost),
        property<Style, &Style::shadows>("shadows").within(kLeast, kMost),
        property<Style, &Style::materialMode>("materialMode").within(kLeast, kMost),
        property<Style, &Style::backgrounds>("backgrounds"),
        property<Style, &Style::edges>("edges").within(kLeast, kMost),
        property<Style, &Style::edgeColor>("edgeColor"),
        property<Style, &Style::edgeOverhang>("edgeOverhang").within(kLeast, kMost),
        property<Style, &Style::edgeJitter>("edgeJitter").within(kLeast, kMost),
        property<Style, &Style::edgeWidth>("edgeWidth").within(kLeast, kMost),
        property<Style, &Style::edgeSmooth>("edgeSmooth").within(kLeast, kMost),
        property<Style, &Style::silhouetteEdges>("silhouetteEdges"),
        property<Style, &Style::silhouetteWidth>("silhouetteWidth").within(kLeast, kMost),
        property<Style, &Style::silhouetteColor>("silhouetteColor"),
        property<Style, &Style::obscuredEdges>("obscuredEdges"),
        property<Style, &Style::obscuredColor>("obscuredColor"),
        property<Style, &Style::intersectionEdges>("intersectionEdges"),
        property<Style, &Style::intersectionColor>("intersectionColor"),
    };
    return kProperties;
}

}  // namespace workbench::drawing
