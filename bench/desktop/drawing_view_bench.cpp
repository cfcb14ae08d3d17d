#include "workbench/desktop/drawing_view/scene.h"
#include "workbench/desktop/drawing_view/scene_painter.h"
#include "workbench/drawing/drawing.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/view_parameters.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace {

using workbench::desktop::Camera;
using workbench::desktop::Scene;
using workbench::drawing::Drawing;
using workbench::drawing::Entity;
using workbench::drawing::EntityType;
using workbench::drawing::RecordKind;
using workbench::drawing::Vec3;
using workbench::drawing::ViewParameters;

/// A hilly field of square faces.
std::vector<Entity> hills(int faces) {
    const int side = static_cast<int>(std::sqrt(faces));
    const auto point = [](int x, int y) {
        return Vec3{x * 1.0, y * 1.0, 3.0 * std::sin(x * 0.2) * std::cos(y * 0.2)};
    };
    std::vector<Entity> entities;
    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y) {
            Entity& face = entities.emplace_back();
            face.type = EntityType::Face;
            face.points = {point(x, y), point(x + 1, y), point(x + 1, y + 1), point(x, y + 1)};
        }
    }
    return entities;
}

/// A town of boxes of six faces each.
std::vector<Entity> town(int faces) {
    const int side = static_cast<int>(std::sqrt(faces / 6));
    std::vector<Entity> entities;
    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y) {
            Entity& box = entities.emplace_back();
            box.type = EntityType::Box;
            box.points = {{x * 2.0, y * 2.0, 0}};
            box.size = {1, 1, 1.0 + (x * 7 + y * 3) % 5};
        }
    }
    return entities;
}

ViewParameters viewOf(int faces, bool perspective) {
    const double side = std::sqrt(faces);
    ViewParameters view;
    view.target = {side / 2, side / 2, 0};
    view.eye = {side / 2, -side, side};
    view.up = {0, 0, 1};
    view.width = side * 1.2;
    view.height = side;
    view.perspective = perspective;
    return view;
}

std::unique_ptr<Drawing> drawingOf(const std::vector<Entity>& entities) {
    std::unique_ptr<Drawing> drawing = workbench::drawing::makeNewDrawing();
    for (Entity entity : entities) {
        entity.layer.id = drawing->db.first(RecordKind::Layer);
        drawing->db.add(std::move(entity));
    }
    return drawing;
}

Scene sceneOf(const Drawing& drawing) {
    return workbench::desktop::sceneOf(drawing.db, workbench::drawing::activeViewport(drawing.db),
                                       {50, Qt::white, Qt::black});
}

/// One redraw of so many faces, in parallel (0) and in perspective (1).
void redraw(benchmark::State& state, std::vector<Entity> (*entities)(int)) {
    const auto faces = static_cast<int>(state.range(0));
    const Scene scene = sceneOf(*drawingOf(entities(faces)));
    QImage image(1200, 800, QImage::Format_RGB32);
    const Camera camera(viewOf(faces, state.range(1) != 0), image.size());
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::white);
        workbench::desktop::paintScene(painter, scene, camera);
    }
    state.counters["faces"] = static_cast<double>(scene.faces.size());
}
void redrawArguments(benchmark::internal::Benchmark* redraw) {
    redraw->Args({1000, 0})->Args({10000, 0})->Args({10000, 1})->Unit(benchmark::kMillisecond);
}
BENCHMARK_CAPTURE(redraw, hills, hills)->Apply(redrawArguments);
BENCHMARK_CAPTURE(redraw, town, town)->Apply(redrawArguments);

/// What a change of the drawing adds to its next redraw.
void makeScene(benchmark::State& state) {
    const std::unique_ptr<Drawing> drawing = drawingOf(hills(static_cast<int>(state.range(0))));
    for (auto _ : state)
        benchmark::DoNotOptimize(sceneOf(*drawing));
}
BENCHMARK(makeScene)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
