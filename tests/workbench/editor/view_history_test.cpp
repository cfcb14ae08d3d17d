#include "workbench/editor/view_history.h"

#include "workbench/drawing/drawing.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"

#include <gtest/gtest.h>

#include <memory>

namespace workbench {

using drawing::Viewport;
using drawing::Writing;

class ViewHistoryTest : public testing::Test {
protected:
    drawing::Database& data() { return m_drawing->db; }
    drawing::ObjectId port() { return drawing::activeViewport(data()); }
    void setWidth(double width) { Writing<Viewport>(data(), port())->view.width = width; }
    /// A named view, which the viewport then shows.
    drawing::ObjectId restoreNamed(double width) {
        drawing::View view;
        view.name = "Wide";
        view.view.width = width;
        const drawing::ObjectId id = data().add(view).id;
        Writing<Viewport> writing(data(), port());
        writing->view = view.view;
        writing->appliedView.id = id;
        return id;
    }
    drawing::ObjectId named() { return data().look<Viewport>(port())->appliedView.id; }
    double width() { return data().look<Viewport>(port())->view.width; }

    std::unique_ptr<drawing::Drawing> m_drawing = drawing::makeNewDrawing();
    int m_changes = 0;
    ViewHistory m_history{m_drawing->db, [this](drawing::ObjectId) { ++m_changes; }};
};

TEST_F(ViewHistoryTest, WithoutAnEarlierViewThereIsNoStepBack) {
    EXPECT_FALSE(m_history.stepBack(port()));
    EXPECT_FALSE(m_history.stepBack({}));
    EXPECT_EQ(m_changes, 0);
}

TEST_F(ViewHistoryTest, StepsBackThroughTheViewsOneByOne) {
    const double first = width();
    setWidth(10);
    setWidth(20);
    EXPECT_EQ(m_history.depth(port()), 2U);
    EXPECT_TRUE(m_history.stepBack(port()));
    EXPECT_EQ(width(), 10);
    EXPECT_TRUE(m_history.stepBack(port()));
    EXPECT_EQ(width(), first);
    EXPECT_FALSE(m_history.stepBack(port()));
    EXPECT_EQ(m_changes, 4);
}

TEST_F(ViewHistoryTest, WhatChangedWhileQuietIsToldOnceAndIsOneStep) {
    const double first = width();
    m_history.setQuiet(true);
    setWidth(10);
    setWidth(20);
    m_history.setQuiet(false);
    EXPECT_EQ(m_changes, 0);
    m_history.tell(port());
    m_history.tell(port());
    m_history.tell({});
    EXPECT_EQ(m_changes, 1);
    EXPECT_EQ(m_history.depth(port()), 1U);
    EXPECT_TRUE(m_history.stepBack(port()));
    EXPECT_EQ(width(), first);
}

TEST_F(ViewHistoryTest, ALoudChangeAfterAQuietOneIsAStepOfItsOwn) {
    m_history.setQuiet(true);
    setWidth(10);
    m_history.setQuiet(false);
    setWidth(20);
    EXPECT_EQ(m_changes, 1);
    EXPECT_EQ(m_history.depth(port()), 2U);
}

TEST_F(ViewHistoryTest, ANamedViewComesBackUnderItsName) {
    const drawing::ObjectId view = restoreNamed(10);
    {
        Writing<Viewport> writing(data(), port());
        writing->view.width = 20;
        writing->appliedView = {};
    }
    EXPECT_TRUE(m_history.stepBack(port()));
    EXPECT_EQ(named(), view);
    EXPECT_TRUE(m_history.stepBack(port()));
    EXPECT_TRUE(named().isNull());
}

TEST_F(ViewHistoryTest, ANamedViewThatChangedOrIsGoneComesBackWithoutItsName) {
    const drawing::ObjectId view = restoreNamed(10);
    setWidth(20);
    Writing<drawing::View>(data(), view)->view.width = 11;
    EXPECT_TRUE(m_history.stepBack(port()));
    EXPECT_EQ(width(), 10);
    EXPECT_TRUE(named().isNull());

    Writing<drawing::View>(data(), view)->view.width = 10;
    Writing<Viewport>(data(), port())->appliedView.id = view;
    setWidth(20);
    Writing<drawing::View>(data(), view).erase();
    EXPECT_TRUE(m_history.stepBack(port()));
    EXPECT_TRUE(named().isNull());
}

TEST_F(ViewHistoryTest, AfterAStepBackTheNextChangeCountsAgain) {
    setWidth(10);
    m_history.stepBack(port());
    setWidth(30);
    EXPECT_EQ(m_history.depth(port()), 1U);
}

TEST_F(ViewHistoryTest, AChangeThatLeavesTheViewIsNone) {
    Writing<Viewport>(data(), port())->locked = true;
    EXPECT_EQ(m_history.depth(port()), 0U);
    EXPECT_EQ(m_changes, 0);
}

TEST_F(ViewHistoryTest, AViewThatCannotBeChangedStaysOnTheStack) {
    setWidth(10);
    {
        const drawing::Reading<Viewport> reading(data(), port());
        EXPECT_FALSE(m_history.stepBack(port()));
    }
    EXPECT_EQ(m_history.depth(port()), 1U);
    EXPECT_TRUE(m_history.stepBack(port()));
}

TEST_F(ViewHistoryTest, AViewportThatIsAddedHasAHistoryToo) {
    Viewport added;
    added.number = 5;
    added.view.width = 3;
    const drawing::ObjectId id = data().add(added).id;
    Writing<Viewport>(data(), id)->view.width = 4;
    EXPECT_TRUE(m_history.stepBack(id));
    EXPECT_EQ(data().look<Viewport>(id)->view.width, 3);
}

TEST_F(ViewHistoryTest, ALockedViewportIsNotSteppedBack) {
    setWidth(10);
    Writing<Viewport>(data(), port())->locked = true;
    EXPECT_FALSE(m_history.stepBack(port()));
    EXPECT_FALSE(m_history.stepBackByZoom(port()));
    EXPECT_EQ(width(), 10);
    EXPECT_EQ(m_history.depth(port()), 1U);
}

TEST_F(ViewHistoryTest, AStepByZoomTakesBackWhatMovedTheViewSince) {
    const double first = width();
    setWidth(10);
    Writing<Viewport>(data(), port())->view.eye = {1, 1, 1};
    Writing<Viewport>(data(), port())->view.eye = {2, 2, 2};
    EXPECT_EQ(m_history.depth(port()), 3U);
    EXPECT_TRUE(m_history.stepBackByZoom(port()));
    EXPECT_EQ(width(), first);
    EXPECT_EQ(data().look<Viewport>(port())->view, drawing::ViewParameters());
    EXPECT_EQ(m_history.depth(port()), 0U);
}

TEST_F(ViewHistoryTest, WithoutAZoomThereIsNoStepByZoom) {
    EXPECT_FALSE(m_history.stepBackByZoom(port()));
    EXPECT_FALSE(m_history.stepBackByZoom({}));
    Writing<Viewport>(data(), port())->view.eye = {1, 1, 1};
    EXPECT_FALSE(m_history.stepBackByZoom(port()));
    EXPECT_EQ(m_history.depth(port()), 1U);
}

TEST_F(ViewHistoryTest, AGestureIsOneStepHoweverOftenItChangesTheView) {
    const double first = width();
    m_history.beginGesture(drawing::UndoLog::Gesture::New);
    setWidth(10);
    setWidth(20);
    m_history.endGesture();
    setWidth(30);
    EXPECT_EQ(m_changes, 3);
    EXPECT_EQ(m_history.depth(port()), 2U);
    m_history.stepBack(port());
    EXPECT_EQ(width(), 20);
    m_history.stepBack(port());
    EXPECT_EQ(width(), first);
}

TEST_F(ViewHistoryTest, AGestureThatContinuesAddsNoStepUnlessTheViewChangedSince) {
    const auto turn = [this](double width) {
        m_history.beginGesture(drawing::UndoLog::Gesture::Continue);
        setWidth(width);
        m_history.endGesture();
    };
    turn(10);
    turn(20);
    EXPECT_EQ(m_history.depth(port()), 1U);
    setWidth(30);
    turn(40);
    turn(50);
    EXPECT_EQ(m_history.depth(port()), 3U);
}

TEST_F(ViewHistoryTest, AnInterruptedGestureGoesOnWithAStepOfItsOwn) {
    m_history.beginGesture(drawing::UndoLog::Gesture::New);
    setWidth(10);
    m_history.interruptGesture();
    setWidth(20);
    setWidth(30);
    EXPECT_EQ(m_history.depth(port()), 2U);
}

}  // namespace workbench
