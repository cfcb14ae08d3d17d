#include "tests/workbench/host/test_options.h"
#include "workbench/desktop/app/host_actions.h"
#include "workbench/desktop/app/main_window.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/toolkit/shade.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>

namespace workbench::desktop {
namespace {

/// How far two pictures of one size differ.
struct Difference {
    double mean = 0.0;   // of all channels, of 255
    double share = 0.0;  // of the pixels that differ clearly
};

Difference between(const QImage& left, const QImage& right) {
    constexpr int kClear = 40;
    Difference difference;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QColor a = left.pixelColor(x, y);
            const QColor b = right.pixelColor(x, y);
            const int most = std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                       std::abs(a.blue() - b.blue())});
            difference.mean += most;
            difference.share += most > kClear ? 1.0 : 0.0;
        }
    }
    const double pixels = static_cast<double>(left.width()) * left.height();
    return {difference.mean / pixels, difference.share / pixels};
}

class PictureTest : public testing::TestWithParam<Shade> {};

/// The pictures are those of the documentation; scripts/pictures takes them anew.
TEST_P(PictureTest, TheDashboardLooksAsItsPictureDoes) {
    Workbench workbench(testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json"));
    MainWindow window(workbench, GetParam());
    window.resize(1200, 800);
    window.show();
    openDashboard(workbench, PROJECT_SOURCE_ROOT "/examples/house.json");
    switchWorkspace(workbench, "3D Modeling");
    letHostRun(workbench);
    window.stage().pump.resume();
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("taken.png"));
    window.takePicture(file.toStdString(), false);
    const QImage taken(file);
    const QImage stored(QStringLiteral(PROJECT_SOURCE_ROOT "/docs/pictures/dashboard-%1.png")
                            .arg(QLatin1String(nameOf(GetParam()))));
    ASSERT_FALSE(stored.isNull());
    ASSERT_EQ(taken.size(), stored.size());
    const Difference difference = between(taken, stored);
    EXPECT_LT(difference.mean, 3.0);
    EXPECT_LT(difference.share, 0.01);
}

INSTANTIATE_TEST_SUITE_P(Themes, PictureTest, testing::Values(Shade::Light, Shade::Dark));

}  // namespace
}  // namespace workbench::desktop
