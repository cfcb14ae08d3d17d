#include "tests/nav3d/camera_fixture.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <cmath>
#include <string>
#include <vector>

namespace {

using Calls = std::vector<std::string>;

/// What a user sees and feels of an entry, and what it does to the view.
const std::vector<std::string_view> kEntrySteps{
    "QrUiHideBalloonTip",  "QrUiShowBalloonTip",
    "CWnd::SetWindowText", "CWnd::SetFocus",
    "vxdbDisToF",          "vxgsWriteViewToUndoController",
    "vxgsSetLensLength",   "vxgsSetViewParameters",
    "vxedSendViewChanged", "VxViewMgrDlg::viewComboClear",
    "vxgsGetLensLength"};

const std::string kHide = "QrUiHideBalloonTip(object)";
const std::string kFocus = "CWnd::SetFocus(\"CQrUiInputEditCtrl\")";

std::string balloonCall(const std::string& text) {
    return "QrUiShowBalloonTip(object, object, \"" + text + "\", 0)";
}

std::string textCall(const std::wstring& text) {
    return "CWnd::SetWindowText(\"CQrUiInputEditCtrl\", \"" + workbench::toUtf8(text) + "\")";
}

std::string parseCall(const std::string& text) {
    return "vxdbDisToF(\"" + text + "\", -1)";
}

class CameraEntryTest : public CameraPointTest {};

INSTANTIATE_TEST_SUITE_P(Controls, CameraEntryTest, testing::Values(kEyeCase, kTargetCase));

struct AxisCase {
    const char* name;
    const char* others[2];
};

TEST_P(CameraEntryTest, EnteredCoordinateMovesThePointAlone) {
    for (const AxisCase& axis :
         {AxisCase{"x", {"y", "z"}}, AxisCase{"y", {"x", "z"}}, AxisCase{"z", {"x", "y"}}}) {
        const double before[] = {own(axis.others[0]), own(axis.others[1])};
        const workbench::Value other = db(std::string("viewports.current.") + GetParam().other);
        enter(L"50", axis.name);
        EXPECT_DOUBLE_EQ(own(axis.name), 50.0);
        EXPECT_DOUBLE_EQ(own(axis.others[0]), before[0]);
        EXPECT_DOUBLE_EQ(own(axis.others[1]), before[1]);
        EXPECT_EQ(db(std::string("viewports.current.") + GetParam().other), other);
        leave();
    }
}

TEST_P(CameraEntryTest, EntryIsReadThenTheBalloonGoesThenTheViewIsRecordedAndSet) {
    put(L"50", "y");
    takeJournal();
    press("enter");
    const Calls made = takeCallLines(
        {"vxdbDisToF", "QrUiHideBalloonTip", "vxgsWriteViewToUndoController", "VxGsView::update",
         "vxgsSetViewParameters", "vxedSendViewChanged", "VxViewMgrDlg::viewComboClear"});
    EXPECT_EQ(made, (Calls{parseCall("50"), kHide, "vxgsWriteViewToUndoController(2)",
                           "vxgsSetViewParameters(2, object, true, false, false)"}))
        << "the host is not told of the view by the control";
    leave();
}

TEST_P(CameraEntryTest, OwnChangeDoesNotRefreshAndTheNextForeignOneDoes) {
    enter(L"50", "y");
    EXPECT_EQ(text("y"), L"50") << "as it was typed";
    leave();
    EXPECT_EQ(text("y"), L"50");
    send(1736);
    EXPECT_EQ(text("y"), L"50.0");
    setDb(std::string("viewports.current.") + GetParam().path, point(4.0, 5.0, 6.5));
    EXPECT_EQ(text("y"), L"5.0");
}

TEST_P(CameraEntryTest, AcceptedTextIsTheOneThatIsShownOfTheCoordinate) {
    enter(L"50", "y");
    put(L"7", "y");
    press("escape");
    EXPECT_EQ(text("y"), L"50.0");
    leave();
}

TEST_P(CameraEntryTest, LeavingAfterEnterMovesThePointToTheSamePlaceOnceMore) {
    enter(L"50", "y");
    takeJournal();
    leave();
    EXPECT_EQ(takeCount("vxgsWriteViewToUndoController"), 1U)
        << "the typed text is not the one that was kept";
    EXPECT_DOUBLE_EQ(own("y"), 50.0);
}

TEST_P(CameraEntryTest, EyeThatStandsOnItsTargetIsLeftAlone) {
    setDb("viewports.current.target", point(1.0, 2.0, 3.0));
    setDbQuietly("viewports.current.eye", point(1.0, 2.0, 3.0));
    send(1736);
    put(L"50", "y");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCount("vxgsSetViewParameters"), 0U)
        << "there is no distance to keep the angle by";
    leave();
}

TEST_P(CameraEntryTest, PerspectiveStaysAsItWas) {
    for (const int perspective : {1, 0}) {
        set(L"PERSPECTIVE", perspective);
        enter(perspective == 1 ? L"40" : L"60", "z");
        EXPECT_EQ(db("viewports.current.perspective"), workbench::Value(perspective == 1));
        leave();
    }
}

TEST_P(CameraEntryTest, FieldScalesWithTheDistance) {
    const double width = number("viewports.current.width");
    const double height = number("viewports.current.height");
    const double before = std::hypot(9.0, 18.0, 27.0);
    enter(GetParam().windowId == 105 ? L"2" : L"20", "y");
    const double after = std::hypot(9.0, 27.0);
    EXPECT_NEAR(number("viewports.current.width"), width * after / before, width * 1.0e-9);
    EXPECT_NEAR(number("viewports.current.height"), height * after / before, height * 1.0e-9);
    leave();
}

TEST_P(CameraEntryTest, UpVectorIsSquareToTheViewWhateverItWas) {
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

TEST_P(CameraEntryTest, OtherPointsCoordinatesChangeNothingAndRecordNothing) {
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

TEST_P(CameraEntryTest, MovesNothingWithoutAView) {
    put(L"50", "x");
    fail("vxgsGetGsManager");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCallLines(kEntrySteps), (Calls{parseCall("50"), kHide}));
    EXPECT_EQ(text("x"), L"50");
    leave();
}

TEST_P(CameraEntryTest, EmptyFieldRestoresTheTextWithoutABalloon) {
    enter(L"  ", "x");
    EXPECT_EQ(text("x"), shownX());
    EXPECT_EQ(balloon(), "");
    leave();
}

TEST_P(CameraEntryTest, SameTextAfterTrimmingChangesNothing) {
    put(L" " + shownX() + L" ", "x");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCallLines(kEntrySteps), Calls{});
    EXPECT_EQ(text("x"), L" " + shownX() + L" ");
    leave();
}

TEST_P(CameraEntryTest, SameTextAsksTheHostNothing) {
    focusField("x");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCalls(), Calls{});
    leave();
}

TEST_P(CameraEntryTest, EmptyFieldAsksTheHostNothing) {
    put(L"  ", "x");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCalls(), Calls{"CWnd::SetWindowText"});
    leave();
}

TEST_P(CameraEntryTest, TextThatIsNoNumberIsGivenBackAndThenTold) {
    for (const char* name : {"x", "y", "z"}) {
        const std::wstring before = text(name);
        put(L"left", name);
        takeJournal();
        press("enter");
        EXPECT_EQ(balloonTarget(), field(name));
        EXPECT_EQ(takeCallLines(kEntrySteps), (Calls{parseCall("left"), kHide, textCall(before),
                                                     kFocus, balloonCall(string(1234))}));
        EXPECT_EQ(balloon(), string(1234));
        EXPECT_TRUE(hasFocus(field(name)));
        leave();
    }
}

TEST_P(CameraEntryTest, TypingAfterARefusalReplacesAllOfTheText) {
    enter(L"left", "z");
    EXPECT_EQ(balloon(), string(1234));
    workbench::gestures::typeText(bench().toolkit(), L"7");
    EXPECT_EQ(text("z"), L"7");
    press("escape");
    leave();
}

TEST_P(CameraEntryTest, EntryThatCanBeReadHidesTheBalloon) {
    enter(L"left", "z");
    EXPECT_EQ(balloon(), string(1234));
    EXPECT_NE(balloonText(), L"");
    enter(L"40", "z");
    EXPECT_EQ(balloonText(), L"");
    leave();
}

TEST_P(CameraEntryTest, EntriesReachNoCommandLine) {
    bench().windows().setName(bench().toolkit().frame().commandLine().m_hWnd, "CommandLine");
    enter(L"50", "y");
    put(L"7", "y");
    press("escape");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_TRUE(takeMessagesOf("CommandLine").empty());
    leave();
}

TEST_P(CameraEntryTest, TextIsKeptAsADistance) {
    takeJournal();
    focusField("x");
    EXPECT_EQ(takeCallLines({"vxdbDisToF"}), Calls{parseCall(workbench::toUtf8(shownX()))});
    leave();
}

TEST_P(CameraEntryTest, TextThatIsNoDistanceIsNotKept) {
    focusField("x");
    leave();
    bench().windows().state().setText(field("x"), L"left");
    focusField("x");
    press("escape");
    EXPECT_EQ(text("x"), shownX());
    leave();
}

TEST_P(CameraEntryTest, LostViewportCountsAsLocked) {
    put(L"50", "x");
    loseViewport();
    press("enter");
    EXPECT_EQ(balloon(), string(1231));
    EXPECT_EQ(text("x"), shownX());
    leave();
}

TEST_P(CameraEntryTest, OtherNoticesAndOtherFieldsAreIgnored) {
    focusField("x");
    leave();
    bench().windows().state().setText(field("x"), L"50");
    takeJournal();
    const auto edit = reinterpret_cast<LPARAM>(field("x"));
    send(1733, 5001 | EN_SETFOCUS << 16, edit);
    send(1734, 5001 | EN_KILLFOCUS << 16, edit);
    for (const WPARAM id : {5000, 5004}) {
        send(1733, id | EN_KILLFOCUS << 16, edit);
        send(1734, id | EN_SETFOCUS << 16, edit);
        send(1735, id, edit);
        send(1738, id, edit);
    }
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_EQ(text("x"), L"50");
}

TEST_P(CameraEntryTest, EscapeRestoresTheText) {
    put(L"77", "x");
    press("escape");
    EXPECT_EQ(text("x"), shownX());
    leave();
}

TEST_P(CameraEntryTest, TabCommitsOneFieldAndKeepsTheTextOfTheNext) {
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

// In a layout

class CameraInLayoutTest : public NavControlTest {
public:
    /// Enters a coordinate that is refused: the steps.
    Calls refuse() {
        put(L"50", "x");
        takeJournal();
        press("enter");
        return takeCallLines(kEntrySteps);
    }

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

TEST_F(CameraInLayoutTest, RefusalIsToldBeforeTheTextIsRestored) {
    set(L"CVPORT", 1);
    const std::wstring before = text("x");
    EXPECT_EQ(refuse(), (Calls{balloonCall(string(1232)), textCall(before)}));
    EXPECT_EQ(balloonTarget(), field("x"));
    EXPECT_EQ(balloon(), string(1232));
    leave();
}

TEST_F(CameraInLayoutTest, SameTextAndEmptyTextAreNoReasonForABalloon) {
    set(L"CVPORT", 1);
    focusField("x");
    press("enter");
    put(L"", "x");
    press("enter");
    EXPECT_EQ(balloon(), "");
    leave();
}

TEST_F(CameraInLayoutTest, SameTextButForBlanksIsRefusedAsAnEntry) {
    set(L"CVPORT", 1);
    const std::wstring before = text("x");
    put(L" " + before, "x");
    press("enter");
    EXPECT_EQ(balloon(), string(1232));
    EXPECT_EQ(text("x"), before);
    leave();
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
