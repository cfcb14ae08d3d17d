#include "tests/nav3d/nav_fixture.h"

#include "workbench/gestures/key_gestures.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/windows/background_painter.h"
#include "workbench/windows/window_system.h"

#include <cmath>

namespace {

/// What the two controls differ in.
struct PointCase {
    const char* control;
    int windowId;
    const wchar_t* itemId;
    const char* image;
    UINT itemName;
    UINT firstTip;
    const char* path;   // of the point that it shows
    const char* other;  // of the point that stays
    const char* function;
};

void PrintTo(const PointCase& row, std::ostream* out) {
    *out << row.control;
}

class CameraPointTest : public NavControlTest, public testing::WithParamInterface<PointCase> {
protected:
    void SetUp() override {
        showControl(GetParam().control);
        setDb("viewports.current.eye", point(10.0, 20.0, 30.0));
        setDb("viewports.current.target", point(1.0, 2.0, 3.0));
        set(L"LUPREC", 1);
        takeJournal();
    }
    static workbench::Value point(double x, double y, double z) {
        return workbench::Value::List{x, y, z};
    }
    std::wstring shownX() { return GetParam().windowId == 105 ? L"10.0" : L"1.0"; }
    double own(const char* axis) {
        return number(std::string("viewports.current.") + GetParam().path + "." + axis);
    }
};

INSTANTIATE_TEST_SUITE_P(
    Controls, CameraPointTest,
    testing::Values(PointCase{"3DNavPointTriplet1", 105, L"TPB_3DNAV_POINTTRIPLET1",
                              "RCDATA_3DNAV_POINTTRIPLETPANEL1", 1235, 1274, "eye", "target",
                              "navUpdateCameraPosition"},
                    PointCase{"3DNavPointTriplet2", 106, L"TPB_3DNAV_POINTTRIPLET2",
                              "RCDATA_3DNAV_POINTTRIPLETPANEL2", 1236, 1277, "target", "eye",
                              "navUpdateCameraTarget"}));

TEST_P(CameraPointTest, PartsHaveTheirIdsAndTexts) {
    EXPECT_EQ(bench().windows().find(window())->id, GetParam().windowId);
    const workbench::ItemView icon = workbench::viewOf(bench().toolkit(), *item(GetParam().itemId));
    EXPECT_EQ(icon.image, GetParam().image);
    EXPECT_EQ(icon.name, stringOf(GetParam().itemName));
    EXPECT_EQ(bench().windows().find(field("x"))->id, 5001);
    EXPECT_EQ(bench().windows().find(field("y"))->id, 5002);
    EXPECT_EQ(bench().windows().find(field("z"))->id, 5003);
    EXPECT_EQ(tipOf(field("x")), stringOf(GetParam().firstTip));
    EXPECT_EQ(tipOf(field("y")), stringOf(GetParam().firstTip + 1));
    EXPECT_EQ(tipOf(field("z")), stringOf(GetParam().firstTip + 2));
}

TEST_P(CameraPointTest, ShowsItsPointOfTheView) {
    EXPECT_EQ(text("x"), shownX());
    setDb(std::string("viewports.current.") + GetParam().path, point(4.0, 5.0, 6.5));
    announce(L"TILEMODE");
    EXPECT_EQ(text("x"), L"4.0");
    EXPECT_EQ(text("y"), L"5.0");
    EXPECT_EQ(text("z"), L"6.5");
}

TEST_P(CameraPointTest, FollowsFourVariablesAndNoOther) {
    const std::string path = std::string("viewports.current.") + GetParam().path;
    int x = 100;
    for (const wchar_t* name : {L"CVPORT", L"TILEMODE", L"LUPREC", L"LUNITS"}) {
        setDbQuietly(path, point(++x, 0.0, 0.0));
        announce(name);
        EXPECT_EQ(text("x"), std::to_wstring(x) + L".0") << workbench::toUtf8(name);
    }
    setDbQuietly(path, point(200.0, 0.0, 0.0));
    announce(L"PERSPECTIVE");
    announce(L"cvport");
    EXPECT_EQ(text("x"), std::to_wstring(x) + L".0");
}

TEST_P(CameraPointTest, EnteredCoordinateMovesThePointAlone) {
    enter(L"50", "y");
    EXPECT_DOUBLE_EQ(own("y"), 50.0);
    EXPECT_EQ(takeCount("vxedSendViewChanged"), 0U);
    leave();
}

TEST_P(CameraPointTest, FieldScalesWithTheDistance) {
    const double width = number("viewports.current.width");
    const double before = std::hypot(9.0, 18.0, 27.0);
    enter(GetParam().windowId == 105 ? L"2" : L"20", "y");
    const double after = std::hypot(9.0, 27.0);
    EXPECT_NEAR(number("viewports.current.width"), width * after / before, width * 1.0e-9);
    leave();
}

TEST_P(CameraPointTest, UpVectorIsSquareToTheViewWhateverItWas) {
    setDb("viewports.current.up", point(0.3, 0.4, 0.5));
    enter(L"50", "x");
    double product = 0.0;
    double length = 0.0;
    for (const char* axis : {"x", "y", "z"}) {
        const std::string at = std::string(".") + axis;
        const double up = number("viewports.current.up" + at);
        product +=
            up * (number("viewports.current.eye" + at) - number("viewports.current.target" + at));
        length += up * up;
    }
    EXPECT_NEAR(product, 0.0, 1.0e-9);
    EXPECT_NEAR(length, 1.0, 1.0e-9);
    leave();
}

TEST_P(CameraPointTest, OtherPointsCoordinatesChangeNothingAndRecordNothing) {
    const bool eye = GetParam().windowId == 105;
    setDb("viewports.current.eye", point(10.0, 2.0, 3.0));
    setDb("viewports.current.target", point(1.0, 2.0, 3.0));
    announce(L"CVPORT");
    takeCalls();
    enter(eye ? L"1" : L"10", "x");
    EXPECT_EQ(takeCount("vxgsWriteViewToUndoController"), 0U);
    EXPECT_DOUBLE_EQ(own("x"), eye ? 10.0 : 1.0);
    EXPECT_EQ(text("x"), eye ? L"1" : L"10");
    EXPECT_EQ(balloon(), "");
    leave();
}

TEST_P(CameraPointTest, EmptyFieldRestoresTheTextWithoutABalloon) {
    enter(L"  ", "x");
    EXPECT_EQ(text("x"), shownX());
    EXPECT_EQ(balloon(), "");
    leave();
}

TEST_P(CameraPointTest, SameTextAfterTrimmingChangesNothing) {
    takeCalls();
    enter(L" " + shownX() + L" ", "x");
    EXPECT_EQ(takeCount("vxgsSetViewParameters"), 0U);
    leave();
}

TEST_P(CameraPointTest, TextThatIsNoNumberIsToldAndGivenBack) {
    enter(L"left", "z");
    EXPECT_EQ(balloon(), string(1234));
    EXPECT_TRUE(hasFocus(field("z")));
    EXPECT_NE(text("z"), L"left");
    leave();
}

TEST_P(CameraPointTest, EscapeRestoresTheText) {
    put(L"77", "x");
    press("escape");
    EXPECT_EQ(text("x"), shownX());
    leave();
}

TEST_P(CameraPointTest, TabCommitsOneFieldAndKeepsTheTextOfTheNext) {
    put(L"50", "x");
    press("tab");
    EXPECT_DOUBLE_EQ(own("x"), 50.0);
    EXPECT_TRUE(hasFocus(field("y")));
    const std::wstring y = text("y");
    workbench::gestures::replaceText(bench().toolkit(), L"99");
    press("escape");
    EXPECT_EQ(text("y"), y);
    leave();
}

TEST_P(CameraPointTest, ClickOnTheIconGoesToTheFirstField) {
    clickIcon();
    EXPECT_TRUE(hasFocus(field("x")));
    leave();
}

TEST_P(CameraPointTest, BackgroundIsWhite) {
    EXPECT_EQ(workbench::paintBackground(bench().windows(), window()), 0xffffffU);
    EXPECT_EQ(send(WM_ERASEBKGND, 0), 1) << "also without a context";
}

// While a navigation tool runs

TEST_P(CameraPointTest, ToolMovesThePoint) {
    startTool();
    enter(L"50", "x");
    EXPECT_DOUBLE_EQ(own("x"), 50.0);
    EXPECT_EQ(takeCount("vxgsSetViewParameters"), 0U);
    leave();
}

TEST_P(CameraPointTest, WithoutTheModuleItStopsFollowingUntilADocumentBecomesCurrent) {
    startTool();
    bench().faults().hide("VxVmTools.qlx");
    enter(L"50", "x");
    leave();
    announce(L"CVPORT");
    EXPECT_EQ(text("x"), L"50") << "it no longer follows";
    send(1736);
    EXPECT_EQ(text("x"), L"50");
    send(1726);
    EXPECT_EQ(text("x"), shownX());
}

TEST_P(CameraPointTest, WithoutTheFunctionItGoesOnFollowing) {
    startTool();
    bench().faults().hide("VxVmTools.qlx", GetParam().function);
    enter(L"50", "x");
    leave();
    announce(L"CVPORT");
    EXPECT_EQ(text("x"), shownX());
}

// In a layout

class CameraInLayoutTest : public NavControlTest {
protected:
    void SetUp() override {
        showControl("3DNavPointTriplet1");
        openDrawing("examples/house.json");
        set(L"TILEMODE", 0);
        takeJournal();
    }
};

TEST_F(CameraInLayoutTest, SheetIsToldAndTheTextRestoredAlsoWhenItIsLocked) {
    set(L"CVPORT", 1);
    for (const bool locked : {false, true}) {
        setDb("viewports.current.locked", locked);
        const std::wstring before = text("x");
        enter(L"50", "x");
        EXPECT_EQ(balloon(), string(1232));
        EXPECT_EQ(text("x"), before);
        leave();
    }
}

TEST_F(CameraInLayoutTest, LockedViewportIsToldAndTheTextRestored) {
    set(L"CVPORT", 2);
    setDb("viewports.current.locked", true);
    const std::wstring before = text("x");
    enter(L"50", "x");
    EXPECT_EQ(balloon(), string(1231));
    EXPECT_EQ(text("x"), before);
    leave();
}

}  // namespace
