#include "workbench/desktop/drawing_view/scene.h"

#include "workbench/drawing/layer_overrides.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/viewport.h"

#include <algorithm>
#include <map>
#include <optional>

namespace workbench::desktop {

namespace {

using drawing::Colour;
using drawing::ColourMethod;
using drawing::Entity;
using drawing::Layer;
using drawing::ObjectId;
using drawing::Viewport;

constexpr int kPaperColour = 7;

QColor faded(const QColor& colour, const QColor& into, int percent) {
    const auto mix = [percent](int from, int to) { return from + (to - from) * percent / 100; };
    return {mix(colour.red(), into.red()), mix(colour.green(), into.green()),
            mix(colour.blue(), into.blue())};
}

/// What a layer makes of its entities.
struct LayerLook {
    bool shown = true;
    bool fades = false;
    Colour colour;
};

class SceneMaker {
public:
    SceneMaker(const drawing::Database& database, ObjectId viewport, const SceneSettings& settings)
        : m_settings(settings) {
        const auto* port = database.look<Viewport>(viewport);
        for (const ObjectId id : database.ids(drawing::RecordKind::Layer)) {
            const Layer& own = *database.look<Layer>(id);
            const Layer layer = port == nullptr ? own : drawing::lookIn(*port, id, own);
            const bool frozenHere = port != nullptr && drawing::isFrozenInViewport(*port, id);
            m_layers[id] = {layer.on && !layer.frozen && !frozenHere, layer.locked, layer.colour};
        }
    }

    void add(ObjectId id, const Entity& entity) {
        const LayerLook& layer = m_layers[entity.layer.id];
        if (!layer.shown)
            return;
        const QColor colour = colourOf(entity, layer);
        for (drawing::Polygon& corners : drawing::facesOf(entity)) {
            if (corners.size() < 3)
                continue;
            const Vec3 normal = normalOf(corners);
            m_scene.faces.push_back({std::move(corners), normal, colour, id});
        }
        if (entity.type != drawing::EntityType::Line)
            return;
        for (std::size_t i = 1; i < entity.points.size(); ++i)
            m_scene.lines.push_back({entity.points[i - 1], entity.points[i], colour, id});
    }

    Scene take() { return std::move(m_scene); }

private:
    QColor colourOf(const Entity& entity, const LayerLook& layer) const {
        const bool own = entity.colour.method == ColourMethod::ByIndex ||
                         entity.colour.method == ColourMethod::TrueColour;
        const Colour& colour = own ? entity.colour : layer.colour;
        QColor shown = m_settings.ink;
        if (colour.method == ColourMethod::TrueColour) {
            shown = QColor(colour.red, colour.green, colour.blue);
        } else if (colour.index != kPaperColour) {
            const Colour display = drawing::displayColour(colour.index);
            shown = QColor(display.red, display.green, display.blue);
        }
        if (!layer.fades || m_settings.lockedFading <= 0)
            return shown;
        return faded(shown, m_settings.background, m_settings.lockedFading);
    }

    /// By all corners, so that three of them on a line do no harm.
    static Vec3 normalOf(const drawing::Polygon& corners) {
        Vec3 sum;
        for (std::size_t i = 0; i < corners.size(); ++i)
            sum = sum +
                  cross(corners[i] - corners[0], corners[(i + 1) % corners.size()] - corners[0]);
        return unit(sum);
    }

    SceneSettings m_settings;
    std::map<ObjectId, LayerLook> m_layers;
    Scene m_scene;
};

}  // namespace

Scene sceneOf(const drawing::Database& database, ObjectId viewport, const SceneSettings& settings) {
    SceneMaker maker(database, viewport, settings);
    for (const ObjectId id : database.ids(drawing::RecordKind::Entity))
        maker.add(id, *database.look<Entity>(id));
    return maker.take();
}

}  // namespace workbench::desktop
