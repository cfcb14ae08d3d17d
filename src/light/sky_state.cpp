#include "light/sky_state.h"

#include "core/opened_object.h"
#include "render/scene_service.h"

#include <hostapi/vxdb18/database.h>
#include <hostapi/zorq/views.h>

namespace {

constexpr int kSkyBackgroundType = 11;
constexpr int kNoBackgroundType = 5;

VxDbObjectId backgroundOf(const VxDbObject& view) {
    if (const auto* tile = dynamic_cast<const VxDbViewportTableRecord*>(&view)) {
        return tile->background();
    }
    const auto* viewport = dynamic_cast<const VxDbViewport*>(&view);
    return viewport == nullptr ? VxDbObjectId{} : viewport->background();
}

VxDbObjectId sunIdOf(const VxDbObject& view) {
    if (const auto* tile = dynamic_cast<const VxDbViewportTableRecord*>(&view))
        return tile->sunId();
    const auto* viewport = dynamic_cast<const VxDbViewport*>(&view);
    return viewport == nullptr ? VxDbObjectId{} : viewport->sunId();
}

/// The type of a view's background: that of none where the view has none; nothing if it can't be
/// opened.
std::optional<int> readBackgroundType(const VxDbObject& view) {
    const VxDbObjectId id = backgroundOf(view);
    if (id.isNull() || !id.isValid())
        return kNoBackgroundType;
    const Opened<VxDbBackground> background(id);
    if (background.get() == nullptr)
        return {};
    return background.get()->type();
}

VxDbObjectId findSun() {
    const Opened<VxDbObject> view(vxedActiveViewportId());
    if (view.isOpen()) {
        const VxDbObjectId id = sunIdOf(*view.object());
        if (!id.isNull())
            return id;
    }
    VxDbObjectId active;
    return getActiveSun(active, false) == Zorq::eOk ? active : VxDbObjectId{};
}

}  // namespace

std::optional<int> readSkyStatus() {
    const Opened<VxDbObject> view(vxedActiveViewportId());
    if (!view.isOpen())
        return {};
    const std::optional<int> type = readBackgroundType(*view.object());
    if (!type)
        return {};
    return *type == kSkyBackgroundType ? kSkyStatusOn : kSkyStatusOff;
}

bool readSkyIllumination() {
    const Opened<VxDbSun> sun(findSun());
    return sun.get() != nullptr && sun.get()->skyIllumination();
}
