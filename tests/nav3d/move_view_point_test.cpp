#include "nav3d/move_view_point.h"

#include "tests/palette/palette_fixture.h"
#include "tests/support/call_lines.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/current.h"
#include "workbench/editor/editor.h"
#include "workbench/navigation/navigation_tool.h"

#include <gmock/gmock.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

using Calls = std::vector<std::string>;
using workbench::Value;

double product(const VxGeVector3d& left, const VxGeVector3d& right) {
    return left.x * right.x + left.y * right.y + left.z * right.z;
}

// The up vector

class UpVectorTest : public testing::TestWithParam<VxGePoint3d> {};

TEST_P(UpVectorTest, IsSquareToTheDirectionAndOfLengthOne) {
    const CameraPoints camera{GetParam(), {1.0, 2.0, 3.0}};
    const VxGeVector3d up = upVectorOf(camera);
    EXPECT_NEAR(product(up, camera.eye - camera.target), 0.0, 1.0e-9);
    EXPECT_NEAR(up.length(), 1.0, 1.0e-12);
}

TEST_P(UpVectorTest, IsTheDirectionCrossedWithItsPerpendicular) {
    const CameraPoints camera{GetParam(), {1.0, 2.0, 3.0}};
    const VxGeVector3d direction = camera.eye - camera.target;
    const VxGeVector3d expected =
        direction.crossProduct(direction.perpVector().normalize()).normalize();
    const VxGeVector3d up = upVectorOf(camera);
    EXPECT_NEAR(up.x, expected.x, 1.0e-12);
    EXPECT_NEAR(up.y, expected.y, 1.0e-12);
    EXPECT_NEAR(up.z, expected.z, 1.0e-12);
}

INSTANTIATE_TEST_SUITE_P(Eyes, UpVectorTest,
                         testing::Values(VxGePoint3d{5.0, 2.0, 3.0}, VxGePoint3d{1.0, 2.0, 9.0},
                                         VxGePoint3d{-4.0, 7.0, 11.0},
                                         VxGePoint3d{1.001, 2.0, -50.0}));

// The move

class MoveViewPointTest : public PaletteTest {
protected:
    void SetUp() override {
        load();
        setView();
        forget();
    }
    void setView() {
        setDb("viewports.current.eye", Value::List{10.0, 2.0, 3.0});
        setDb("viewports.current.target", Value::List{1.0, 2.0, 3.0});
        setDb("viewports.current.width", 300.0);
        setDb("viewports.current.height", 200.0);
    }
    workbench::drawing::Database& drawing() {
        return bench().editor().documents().current()->data();
    }
    void setDb(const std::string& path, const Value& value) {
        workbench::drawing::setByPath(drawing(), path, value);
    }
    Value db(const std::string& name) {
        return workbench::drawing::getByPath(drawing(), "viewports.current." + name);
    }
    void goToLockedViewport() {
        bench().editor().documents().open(std::string(PROJECT_SOURCE_ROOT) +
                                          "/examples/house.json");
        ASSERT_TRUE(bench().editor().set(L"TILEMODE", 0));
        ASSERT_TRUE(bench().editor().set(L"CVPORT", 2));
        setDb("viewports.current.locked", true);
        forget();
    }
    Calls steps() {
        return support::callLines(
            bench().journal().take("call"),
            {"vxgsGetGsView", "VxGsClassFactory::createView", "vxgsWriteViewToUndoController",
             "VxGsView::setView", "vxgsSetViewParameters", "VxGsView::update",
             "VxGsClassFactory::deleteView", "vxedSendViewChanged"});
    }
};

TEST_F(MoveViewPointTest, ViewIsRecordedThenSetAndWrittenBackAndNobodyIsTold) {
    MoveViewPoint({19.0, 2.0, 3.0}, true);
    const Calls made = steps();
    ASSERT_EQ(made.size(), 6U);
    EXPECT_EQ(made[0], "vxgsGetGsView(2, false)");
    EXPECT_EQ(made[1].find("VxGsClassFactory::createView(2, "), 0U);
    EXPECT_EQ(made[2], "vxgsWriteViewToUndoController(2)");
    EXPECT_EQ(made[3], "VxGsView::setView(600.000000, 400.000000, false)");
    EXPECT_EQ(made[4], "vxgsSetViewParameters(2, object, true, false, false)");
    EXPECT_EQ(made[5], "VxGsClassFactory::deleteView(object)");
}

TEST_F(MoveViewPointTest, EyeMovesAndTheTargetStays) {
    MoveViewPoint({4.0, 6.0, 3.0}, true);
    EXPECT_EQ(db("eye"), Value(Value::List{4.0, 6.0, 3.0}));
    EXPECT_EQ(db("target"), Value(Value::List{1.0, 2.0, 3.0}));
    EXPECT_DOUBLE_EQ(db("width").asReal(), 300.0 * 5.0 / 9.0);
    EXPECT_DOUBLE_EQ(db("height").asReal(), 200.0 * 5.0 / 9.0);
}

TEST_F(MoveViewPointTest, TargetMovesAndTheEyeStays) {
    MoveViewPoint({7.0, 6.0, 3.0}, false);
    EXPECT_EQ(db("eye"), Value(Value::List{10.0, 2.0, 3.0}));
    EXPECT_EQ(db("target"), Value(Value::List{7.0, 6.0, 3.0}));
    EXPECT_DOUBLE_EQ(db("width").asReal(), 300.0 * 5.0 / 9.0);
}

TEST_F(MoveViewPointTest, PerspectiveStaysAsItIs) {
    ASSERT_TRUE(bench().editor().set(L"PERSPECTIVE", 1));
    MoveViewPoint({4.0, 6.0, 3.0}, true);
    EXPECT_EQ(db("perspective"), Value(true));
}

TEST_F(MoveViewPointTest, PointsThatWouldCoincideWithinTheToleranceStay) {
    const Calls onlyLooked{"vxgsGetGsView(2, false)", "VxGsClassFactory::deleteView(object)"};
    for (const double near : {1.0, 1.0 + 1.0e-12}) {
        forget();
        MoveViewPoint({near, 2.0, 3.0}, true);
        Calls made = steps();
        ASSERT_EQ(made.size(), 3U);
        made.erase(made.begin() + 1);
        EXPECT_EQ(made, onlyLooked);
    }
    EXPECT_EQ(db("eye"), Value(Value::List{10.0, 2.0, 3.0}));
}

TEST_F(MoveViewPointTest, PointsThatCoincideAlreadyStaySinceThereIsNoAngleToKeep) {
    setDb("viewports.current.eye", Value::List{1.0, 2.0, 3.0});
    forget();
    MoveViewPoint({4.0, 6.0, 3.0}, true);
    EXPECT_THAT(steps(), testing::Not(testing::Contains("vxgsWriteViewToUndoController(2)")));
    EXPECT_EQ(db("eye"), Value(Value::List{1.0, 2.0, 3.0}));
}

TEST_F(MoveViewPointTest, LockedViewportIsNotEvenLookedAt) {
    goToLockedViewport();
    MoveViewPoint({4.0, 6.0, 3.0}, true);
    EXPECT_EQ(steps(), Calls{});
}

TEST_F(MoveViewPointTest, MissingViewportIsNotLookedAt) {
    bench().faults().fail("vxedGetVar:CVPORT");
    MoveViewPoint({4.0, 6.0, 3.0}, true);
    EXPECT_EQ(steps(), Calls{});
}

TEST_F(MoveViewPointTest, WithoutAViewNothingIsRecorded) {
    bench().faults().fail("vxgsGetGsManager");
    MoveViewPoint({4.0, 6.0, 3.0}, true);
    EXPECT_EQ(steps(), Calls{"vxgsGetGsView(2, false)"});
}

TEST_F(MoveViewPointTest, LiveViewIsNotGivenBack) {
    ASSERT_TRUE(bench().editor().set(L"VSCURRENT", "Realistic"));
    forget();
    MoveViewPoint({4.0, 6.0, 3.0}, true);
    EXPECT_THAT(steps(), testing::Not(testing::Contains("VxGsClassFactory::deleteView(object)")));
    EXPECT_EQ(db("eye"), Value(Value::List{4.0, 6.0, 3.0}));
}

}  // namespace
