#include "workbench/desktop/drawing_view/scene_painter.h"
#include "workbench/drawing/records/view_parameters.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using workbench::desktop::Camera;
using workbench::desktop::Scene;
using workbench::desktop::SceneFace;
using workbench::drawing::Vec3;
using workbench::drawing::ViewParameters;

/// A hilly field of square faces.
Scene hills(int faces) {
    const int side = static_cast<int>(std::sqrt(faces));
    const auto point = [](int x, int y) {
        return Vec3{x * 1.0, y * 1.0, 3.0 * std::sin(x * 0.2) * std::cos(y * 0.2)};
    };
    Scene scene;
    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y) {
            scene.faces.push_back(
                SceneFace{{point(x, y), point(x + 1, y), point(x + 1, y + 1), point(x, y + 1)},
                          {0, 0, 1},
                          QColor(120, 160, 90)});
        }
    }
    return scene;
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

/// One redraw of so many faces, in parallel (0) and in perspective (1).
void redraw(benchmark::State& state) {
    const auto faces = static_cast<int>(state.range(0));
    const Scene scene = hills(faces);
    QImage image(1200, 800, QImage::Format_RGB32);
    const Camera camera(viewOf(faces, state.range(1) != 0), image.size());
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::white);
        workbench::desktop::paintScene(painter, scene, camera);
    }
}
BENCHMARK(redraw)
    ->Args({1000, 0})
    ->Args({10000, 0})
    ->Args({10000, 1})
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
