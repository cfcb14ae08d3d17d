#include "workbench/drawing/records/render_settings.h"

namespace workbench::drawing {

namespace {

template <class Data>
std::vector<Property<Data>> settingsProperties() {
    return {
        property<Data, &Data::name>("name"),
        property<Data, &Data::description>("description"),
        property<Data, &Data::predefined>("predefined"),
        property<Data, &Data::samplingMin>("samplingMin").within(-3, 5),
        property<Data, &Data::samplingMax>("samplingMax").within(-3, 5),
        property<Data, &Data::materials>("materials"),
        property<Data, &Data::shadows>("shadows"),
        property<Data, &Data::rayTracing>("rayTracing"),
        property<Data, &Data::traceDepth>("traceDepth").within(0, 100),
        property<Data, &Data::globalIllumination>("globalIllumination"),
        property<Data, &Data::finalGathering>("finalGathering"),
    };
}

}  // namespace

const std::vector<Property<RenderPreset>>& RenderPreset::properties() {
    static const auto kProperties = settingsProperties<RenderPreset>();
    return kProperties;
}

const std::vector<Property<ActiveRenderSettings>>& ActiveRenderSettings::properties() {
    static const auto kProperties = settingsProperties<ActiveRenderSettings>();
    return kProperties;
}

const std::vector<Property<RenderGlobals>>& RenderGlobals::properties() {
    using Globals = RenderGlobals;
    static const std::vector<Property<Globals>> kProperties{
        property<Globals, &Globals::width>("width").within(1, 32767),
        property<Globals, &Globals::height>("height").within(1, 32767),
        property<Globals, &Globals::procedure>("procedure").within(0, 2),
        property<Globals, &Globals::destination>("destination").within(0, 1),
        property<Globals, &Globals::saveEnabled>("saveEnabled"),
        property<Globals, &Globals::saveFile>("saveFile"),
        property<Globals, &Globals::predefinedFirst>("predefinedFirst"),
    };
    return kProperties;
}

}  // namespace workbench::drawing
