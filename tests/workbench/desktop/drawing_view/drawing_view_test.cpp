#include "workbench/desktop/drawing_view/drawing_view.h"

#include "tests/workbench/desktop/events.h"
#include "tests/workbench/host/test_options.h"
#include "workbench/desktop/drawing_view/camera.h"
#include "workbench/desktop/drawing_view/sheet.h"
#include "workbench/desktop/pump/pump.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/editor.h"

#include <gtest/gtest.h>

#include <QImage>

namespace workbench::desktop {
namespace {

class DrawingViewTest : public testing::Test {
protected:
    DrawingViewTest() {
        m_view.resize(400, 300);
        m_view.show();
    }

    drawing::Database& data() { return m_document.data(); }
    const drawing::Viewport& port() {
        return *data().look<drawing::Viewport>(drawing::activeViewport(data()));
    }
    std::size_t history() {
        return m_document.viewHistory().depth(drawing::activeViewport(data()));
    }
    QImage picture() { return m_view.grab().toImage(); }
    void drag(QPoint by) {
        press(m_view, {200, 150});
        moveHeld(m_view, QPoint(200, 150) + by / 2);
        moveHeld(m_view, QPoint(200, 150) + by);
        release(m_view, QPoint(200, 150) + by);
    }

    /// Shows the layout "Plan" with its sheet as the current viewport.
    void showSheet() {
        m_workbench.editor().set(L"TILEMODE", 0);
        ASSERT_TRUE(port().isPaper());
    }
    drawing::ObjectId portOnSheet(int number) {
        return drawing::findViewport(data(), drawing::activeLayout(data()), number);
    }
    /// The part of a picture that a viewport of the sheet takes, without its frame.
    QImage partOf(const QImage& image, int number) {
        const drawing::ObjectId layout = drawing::activeLayout(data());
        const Sheet sheet(*data().look<drawing::Layout>(layout), m_view.size());
        const auto& viewport = *data().look<drawing::Viewport>(portOnSheet(number));
        return image.copy(sheet.placeOf(viewport).adjusted(2, 2, -2, -2));
    }

    Workbench m_workbench{testOptions()};
    Pump m_pump{m_workbench};
    Document& m_document =
        m_workbench.editor().documents().open(PROJECT_SOURCE_ROOT "/examples/house.json");
    DrawingView m_view{m_pump, m_document, lookOf(Shade::Light)};
};

TEST_F(DrawingViewTest, ShowsTheDrawing) {
    const QImage image = picture();
    EXPECT_NE(image.pixelColor(200, 150), lookOf(Shade::Light).drawing);
    EXPECT_EQ(image.pixelColor(2, 2), lookOf(Shade::Light).drawing);
}

TEST_F(DrawingViewTest, FollowsChangesOfTheDrawingAtOnce) {
    const QImage before = picture();
    drawing::setByPath(data(), "layers.Roof.on", false);
    const QImage withoutRoof = picture();
    EXPECT_NE(withoutRoof, before);
    drawing::setByPath(data(), "viewports.current.eye.x", port().view.eye.x + 5);
    EXPECT_NE(picture(), withoutRoof);
}

TEST_F(DrawingViewTest, FadingAndColoursAreTakenOver) {
    drawing::setByPath(data(), "layers.Walls.locked", true);
    const QImage before = picture();
    m_view.setFading(90);
    const QImage faded = picture();
    EXPECT_NE(faded, before);
    m_view.setLook(lookOf(Shade::Dark));
    EXPECT_EQ(picture().pixelColor(2, 2), lookOf(Shade::Dark).drawing);
}

TEST_F(DrawingViewTest, ADragOrbitsInOneStepOfTheViewsHistory) {
    const drawing::ViewParameters before = port().view;
    const std::size_t depth = history();
    drag({60, -20});
    EXPECT_EQ(port().view.target, before.target);
    EXPECT_NE(port().view.eye, before.eye);
    EXPECT_EQ(history(), depth + 1);
    EXPECT_TRUE(m_workbench.editor().undo());
    EXPECT_EQ(port().view, before);
}

TEST_F(DrawingViewTest, ADragShowsItselfBeforeItIsWritten) {
    const drawing::ViewParameters before = port().view;
    const QImage still = picture();
    press(m_view, {200, 150});
    moveHeld(m_view, {260, 150});
    EXPECT_NE(picture(), still);
    EXPECT_EQ(port().view, before);
    release(m_view, {260, 150});
    EXPECT_NE(port().view, before);
}

TEST_F(DrawingViewTest, WithShiftOrTheMiddleButtonItPans) {
    drawing::ViewParameters before = port().view;
    sendMouse(m_view, QEvent::MouseButtonPress, {200, 150}, Qt::LeftButton, Qt::LeftButton,
              Qt::ShiftModifier);
    moveHeld(m_view, {220, 150});
    release(m_view, {220, 150});
    EXPECT_NE(port().view.target, before.target);
    before = port().view;
    sendMouse(m_view, QEvent::MouseButtonPress, {200, 150}, Qt::MiddleButton, Qt::MiddleButton);
    moveHeld(m_view, {220, 150});
    sendMouse(m_view, QEvent::MouseButtonRelease, {220, 150}, Qt::MiddleButton, Qt::NoButton);
    EXPECT_NE(port().view.target, before.target);
}

TEST_F(DrawingViewTest, TheWheelZooms) {
    const double before = port().view.width;
    turnWheel(m_view, 1);
    EXPECT_LT(port().view.width, before);
    turnWheel(m_view, -2);
    EXPECT_GT(port().view.width, before);
}

TEST_F(DrawingViewTest, ARunOfTheWheelIsOneStepOfUndo) {
    const drawing::ViewParameters before = port().view;
    turnWheel(m_view, 1);
    turnWheel(m_view, 1);
    m_workbench.editor().undo();
    EXPECT_EQ(port().view, before);
}

TEST_F(DrawingViewTest, AMovedViewIsNoNamedOneAnyMore) {
    EXPECT_FALSE(port().appliedView.id.isNull());
    turnWheel(m_view, 1);
    EXPECT_TRUE(port().appliedView.id.isNull());
}

TEST_F(DrawingViewTest, ALockedViewportAndTheSheetStay) {
    m_workbench.editor().set(L"TILEMODE", 0);
    const QImage sheet = picture();
    EXPECT_EQ(port().isPaper(), true);
    turnWheel(m_view, 1);
    drag({40, 0});
    EXPECT_EQ(picture(), sheet);
    m_workbench.editor().set(L"CVPORT", 2);
    ASSERT_FALSE(port().isPaper());
    drawing::setByPath(data(), "viewports.current.locked", true);
    const drawing::ViewParameters before = port().view;
    turnWheel(m_view, 1);
    drag({40, 0});
    EXPECT_EQ(port().view, before);
}

TEST_F(DrawingViewTest, EachViewportOfASheetLeavesOutItsOwnFrozenLayers) {
    showSheet();
    const QImage before = picture();
    const drawing::ObjectId walls = data().find(drawing::RecordKind::Layer, "Walls");
    drawing::Writing<drawing::Viewport>(data(), portOnSheet(3))->frozenLayers.push_back({walls});
    const QImage after = picture();
    EXPECT_NE(partOf(after, 3), partOf(before, 3));
    EXPECT_EQ(partOf(after, 2), partOf(before, 2));
}

TEST_F(DrawingViewTest, InAViewportOfASheetThePanFollowsTheMouse) {
    showSheet();
    m_workbench.editor().set(L"CVPORT", 3);
    const Sheet sheet(*data().look<drawing::Layout>(port().layout), m_view.size());
    const QSizeF room = sheet.placeOf(port()).size();
    const Vec3 target = port().view.target;
    sendMouse(m_view, QEvent::MouseButtonPress, {200, 150}, Qt::MiddleButton, Qt::MiddleButton);
    moveHeld(m_view, {212, 143});
    sendMouse(m_view, QEvent::MouseButtonRelease, {212, 143}, Qt::MiddleButton, Qt::NoButton);
    const QPointF now = Camera(port().view, room).place(target);
    EXPECT_NEAR(now.x() - room.width() / 2, 12, 1e-6);
    EXPECT_NEAR(now.y() - room.height() / 2, -7, 1e-6);
}

TEST_F(DrawingViewTest, ADragEndsWithTheButtonThatBeganIt) {
    const drawing::ViewParameters before = port().view;
    press(m_view, {200, 150});
    moveHeld(m_view, {220, 150});
    sendMouse(m_view, QEvent::MouseButtonPress, {220, 150}, Qt::RightButton, Qt::LeftButton);
    sendMouse(m_view, QEvent::MouseButtonRelease, {220, 150}, Qt::RightButton, Qt::LeftButton);
    EXPECT_EQ(port().view, before);
    release(m_view, {220, 150});
    EXPECT_NE(port().view, before);
}

TEST_F(DrawingViewTest, ADragGivesWayToAnotherWhoMovesTheView) {
    press(m_view, {200, 150});
    moveHeld(m_view, {220, 150});
    drawing::setByPath(data(), "viewports.current.eye.x", 3.5);
    const drawing::ViewParameters theirs = port().view;
    moveHeld(m_view, {240, 150});
    release(m_view, {240, 150});
    EXPECT_EQ(port().view, theirs);
}

TEST_F(DrawingViewTest, ADragEndsWhenItsViewportIsLockedOrLeft) {
    const drawing::ObjectId first = drawing::activeViewport(data());
    const drawing::ViewParameters before = port().view;
    press(m_view, {200, 150});
    moveHeld(m_view, {220, 150});
    drawing::setByPath(data(), "viewports.current.locked", true);
    release(m_view, {220, 150});
    EXPECT_EQ(port().view, before);
    drawing::setByPath(data(), "viewports.current.locked", false);
    press(m_view, {200, 150});
    moveHeld(m_view, {220, 150});
    m_workbench.editor().set(L"CVPORT", 3);
    const drawing::ViewParameters other = port().view;
    release(m_view, {220, 150});
    EXPECT_EQ(port().view, other);
    EXPECT_EQ(data().look<drawing::Viewport>(first)->view, before);
}

TEST_F(DrawingViewTest, ADragThatComesBackToItsStartIsNoStep) {
    const drawing::ViewParameters before = port().view;
    const std::size_t depth = history();
    press(m_view, {200, 150});
    moveHeld(m_view, {230, 150});
    moveHeld(m_view, {200, 150});
    release(m_view, {200, 150});
    EXPECT_EQ(port().view, before);
    EXPECT_EQ(history(), depth);
    EXPECT_FALSE(port().appliedView.id.isNull());
}

TEST_F(DrawingViewTest, OutlivesItsDocument) {
    m_workbench.editor().documents().close(m_document);
    EXPECT_EQ(m_view.document(), nullptr);
    EXPECT_EQ(picture().pixelColor(200, 150), lookOf(Shade::Light).drawing);
    turnWheel(m_view, 1);
    drag({10, 10});
}

TEST_F(DrawingViewTest, ADragDoesWhatTheRunningToolSays) {
    const drawing::ViewParameters before = port().view;
    m_view.setDragMode(DragMode::Pan);
    drag({40, 0});
    EXPECT_NE(port().view.target, before.target);
    EXPECT_NEAR(drawing::distance(port().view.eye, port().view.target),
                drawing::distance(before.eye, before.target), 1e-6);
    m_view.setDragMode(DragMode::Zoom);
    const drawing::ViewParameters panned = port().view;
    drag({0, -60});
    EXPECT_LT(port().view.width, panned.width);
    m_view.setDragMode(DragMode::Swivel);
    const drawing::ViewParameters zoomed = port().view;
    drag({40, 0});
    EXPECT_EQ(port().view.eye, zoomed.eye);
    EXPECT_NE(port().view.target, zoomed.target);
}

TEST_F(DrawingViewTest, WhilePointsAreAskedForAClickTellsOneAndMovesNothing) {
    std::vector<drawing::Vec3> points;
    m_view.setOnPointed([&points](const drawing::Vec3& point) { points.push_back(point); });
    m_view.setPointing(true);
    const drawing::ViewParameters before = port().view;
    drag({40, 0});
    ASSERT_EQ(points.size(), 1U);
    EXPECT_EQ(points[0].z, 0.0);
    EXPECT_EQ(port().view, before);
    m_view.setPointing(false);
    drag({40, 0});
    EXPECT_EQ(points.size(), 1U);
    EXPECT_NE(port().view, before);
}

}  // namespace
}  // namespace workbench::desktop
