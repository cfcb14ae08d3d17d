#include "tests/nav3d/nav_fixture.h"

#include "workbench/gestures/key_gestures.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/background_painter.h"
#include "workbench/windows/window_system.h"

#include <gmock/gmock.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

using testing::Contains;
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
    int stripId;
};

void PrintTo(const PointCase& row, std::ostream* out) {
    *out << row.control;
}

const PointCase kEyeCase{"3DNavPointTriplet1",
                         105,
                         L"TPB_3DNAV_POINTTRIPLET1",
                         "RCDATA_3DNAV_POINTTRIPLETPANEL1",
                         1235,
                         1274,
                         "eye",
                         "target",
                         "navUpdateCameraPosition",
                         5008};
const PointCase kTargetCase{"3DNavPointTriplet2",
                            106,
                            L"TPB_3DNAV_POINTTRIPLET2",
                            "RCDATA_3DNAV_POINTTRIPLETPANEL2",
                            1236,
                            1277,
                            "target",
                            "eye",
                            "navUpdateCameraTarget",
                            5009};

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
    bool isEye() { return GetParam().windowId == 105; }
    std::wstring shownX() { return GetParam().windowId == 105 ? L"10.0" : L"1.0"; }
    double own(const char* axis) {
        return number(std::string("viewports.current.") + GetParam().path + "." + axis);
    }
};

INSTANTIATE_TEST_SUITE_P(Controls, CameraPointTest, testing::Values(kEyeCase, kTargetCase));

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

TEST_P(CameraPointTest, FieldsAreWhiteAndHaveTheThemesFont) {
    for (const char* name : {"x", "y", "z"}) {
        auto* field = dynamic_cast<workbench::EditWidget*>(
            bench().windows().find(this->field(name))->widget.get());
        EXPECT_EQ(field->background(), 0xffffffU);
        EXPECT_TRUE(hasThemeFont(this->field(name))) << name;
    }
}

TEST_P(CameraPointTest, StripIsMadeOverTheWholeControlAndBehindTheIcon) {
    takeJournal();
    rebuildControl();
    EXPECT_THAT(takeCallLines({"CQrUiCtrlContainer::Create"}),
                Contains("CQrUiCtrlContainer::Create(1342242816, object, " +
                         std::to_string(GetParam().stripId) + ")"));
    const HWND strip = bench().windows().find(field("x"))->parent;
    const CRect whole = firstRectOf(window());
    ASSERT_NE(whole.Width(), 0);
    EXPECT_EQ(firstRectOf(strip), (CRect{0, 0, whole.Width(), whole.Height()}));
    const auto& row = *dynamic_cast<CQrUiToolPanel*>(CWnd::FromHandle(window()));
    ASSERT_EQ(row.GetToolPanelItemCount(), 2);
    EXPECT_EQ(row.GetToolPanelItem(0)->GetID(), GetParam().itemId);
    EXPECT_EQ(row.GetToolPanelItem(1)->GetControl(), strip);
}

TEST_P(CameraPointTest, FieldsAreFilledWhenTheyAreMade) {
    rebuildControl();
    EXPECT_EQ(text("x"), shownX());
}

TEST_P(CameraPointTest, MessagesAreAnsweredZero) {
    const auto edit = reinterpret_cast<LPARAM>(field("x"));
    EXPECT_EQ(send(1726), 0);
    EXPECT_EQ(send(1727, 1, reinterpret_cast<LPARAM>(L"CVPORT")), 0);
    EXPECT_EQ(send(1727, 1, reinterpret_cast<LPARAM>(L"LTSCALE")), 0);
    EXPECT_EQ(send(1736), 0);
    for (const WPARAM id : {5001, 5000, 5004}) {
        EXPECT_EQ(send(1733, id | EN_KILLFOCUS << 16, edit), 0);
        EXPECT_EQ(send(1734, id | EN_SETFOCUS << 16, edit), 0);
        EXPECT_EQ(send(1735, id, edit), 0);
        EXPECT_EQ(send(1738, id, edit), 0);
    }
}

// The tooltip of the fields

/// Notes what the tooltip's window is told; messages are noted for windows that have a name.
class FieldTipTest : public CameraPointTest {
protected:
    void rebuildWithNamedTip() {
        bench().windows().setObserver([this](HWND handle) {
            const workbench::Window* made = bench().windows().find(handle);
            if (made == nullptr || made->className != std::string("CQrToolTipCtrl") ||
                !made->name.empty())
                return;
            bench().windows().setName(handle, "Tip");
        });
        rebuildControl();
        bench().windows().setObserver(nullptr);
    }
    /// The tooltips' messages of a number since the last look, as wParam and lParam.
    std::vector<std::pair<std::int64_t, std::int64_t>> told(UINT number) {
        std::vector<std::pair<std::int64_t, std::int64_t>> all;
        for (const workbench::JournalRecord& record : takeJournal("message")) {
            if (record.field("control") == workbench::Value("Tip") &&
                record.field("number").asInteger() == number)
                all.emplace_back(record.field("wparam").asInteger(),
                                 record.field("lparam").asInteger());
        }
        return all;
    }
};

using Told = std::vector<std::pair<std::int64_t, std::int64_t>>;

INSTANTIATE_TEST_SUITE_P(Controls, FieldTipTest, testing::Values(kEyeCase, kTargetCase));

TEST_P(FieldTipTest, IsLetShowOnceItIsMade) {
    takeJournal();
    rebuildWithNamedTip();
    // Both controls have a tooltip.
    EXPECT_EQ(told(1025), (Told{{1, 0}, {1, 0}}));
}

TEST_P(FieldTipTest, HearsOfEveryMessageOnItsWay) {
    rebuildWithNamedTip();
    takeJournal();
    for (const UINT message : {WM_MOUSEMOVE, WM_KEYDOWN}) {
        MSG msg{field("x"), message, 0, 0};
        EXPECT_EQ(CWnd::FromHandle(window())->PreTranslateMessage(&msg), 0);
        EXPECT_EQ(told(1031), (Told{{0, reinterpret_cast<std::int64_t>(&msg)}}));
    }
}

TEST_P(FieldTipTest, ControlWorksWithoutIt) {
    fail("CQrToolTipCtrl::Create");
    rebuildControl();
    EXPECT_EQ(tipOf(field("x")), L"");
    MSG msg{field("x"), WM_MOUSEMOVE, 0, 0};
    EXPECT_EQ(CWnd::FromHandle(window())->PreTranslateMessage(&msg), 0);
    EXPECT_EQ(text("x"), shownX());
}

// Following the view

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

TEST_P(CameraPointTest, WithoutAViewportTheFieldsStayAsTheyAre) {
    setDbQuietly(std::string("viewports.current.") + GetParam().path, point(77.0, 0.0, 0.0));
    loseViewport();
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_EQ(
        takeCallLines({"vxedGetVar", "vxgsGetGsView", "vxgsGetGsManager", "CWnd::SetWindowText"}),
        Calls{"vxedGetVar(\"CVPORT\")"});
    EXPECT_EQ(text("x"), shownX());
}

class CameraWithoutViewTest : public CameraPointTest {};

INSTANTIATE_TEST_SUITE_P(Controls, CameraWithoutViewTest, testing::Values(kEyeCase, kTargetCase));

TEST_P(CameraWithoutViewTest, FieldsStayAsTheyAre) {
    setDbQuietly(std::string("viewports.current.") + GetParam().path, point(77.0, 0.0, 0.0));
    fail("vxgsGetGsManager");
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_EQ(takeCallLines({"CWnd::SetWindowText"}), Calls{});
    EXPECT_EQ(text("x"), shownX());
}

TEST_P(CameraWithoutViewTest, EntryMovesNothing) {
    put(L"50", "x");
    fail("vxgsGetGsManager");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCallLines(kEntrySteps), (Calls{parseCall("50"), kHide}));
    EXPECT_EQ(text("x"), L"50");
    leave();
}

TEST_P(CameraPointTest, TemporaryViewOfARefreshIsGivenBack) {
    tellOf(L"CVPORT");
    EXPECT_EQ(takeCallLines({"vxgsGetGsView", "VxGsClassFactory::deleteView"}),
              (Calls{"vxgsGetGsView(2, false)", "VxGsClassFactory::deleteView(object)"}));
}

// Entries

struct AxisCase {
    const char* name;
    const char* others[2];
};

TEST_P(CameraPointTest, EnteredCoordinateMovesThePointAlone) {
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

TEST_P(CameraPointTest, EntryIsReadThenTheBalloonGoesThenTheViewIsRecordedAndSet) {
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

TEST_P(CameraPointTest, OwnChangeDoesNotRefreshAndTheNextForeignOneDoes) {
    enter(L"50", "y");
    EXPECT_EQ(text("y"), L"50") << "as it was typed";
    leave();
    EXPECT_EQ(text("y"), L"50");
    send(1736);
    EXPECT_EQ(text("y"), L"50.0");
    setDb(std::string("viewports.current.") + GetParam().path, point(4.0, 5.0, 6.5));
    EXPECT_EQ(text("y"), L"5.0");
}

TEST_P(CameraPointTest, AcceptedTextIsTheOneThatIsShownOfTheCoordinate) {
    enter(L"50", "y");
    put(L"7", "y");
    press("escape");
    EXPECT_EQ(text("y"), L"50.0");
    leave();
}

TEST_P(CameraPointTest, LeavingAfterEnterMovesThePointToTheSamePlaceOnceMore) {
    enter(L"50", "y");
    takeJournal();
    leave();
    EXPECT_EQ(takeCount("vxgsWriteViewToUndoController"), 1U)
        << "the typed text is not the one that was kept";
    EXPECT_DOUBLE_EQ(own("y"), 50.0);
}

TEST_P(CameraPointTest, EyeThatStandsOnItsTargetIsLeftAlone) {
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

TEST_P(CameraPointTest, PerspectiveStaysAsItWas) {
    for (const int perspective : {1, 0}) {
        set(L"PERSPECTIVE", perspective);
        enter(perspective == 1 ? L"40" : L"60", "z");
        EXPECT_EQ(db("viewports.current.perspective"), workbench::Value(perspective == 1));
        leave();
    }
}

TEST_P(CameraPointTest, FieldScalesWithTheDistance) {
    const double width = number("viewports.current.width");
    const double height = number("viewports.current.height");
    const double before = std::hypot(9.0, 18.0, 27.0);
    enter(GetParam().windowId == 105 ? L"2" : L"20", "y");
    const double after = std::hypot(9.0, 27.0);
    EXPECT_NEAR(number("viewports.current.width"), width * after / before, width * 1.0e-9);
    EXPECT_NEAR(number("viewports.current.height"), height * after / before, height * 1.0e-9);
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
    put(L" " + shownX() + L" ", "x");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCallLines(kEntrySteps), Calls{});
    EXPECT_EQ(text("x"), L" " + shownX() + L" ");
    leave();
}

TEST_P(CameraPointTest, SameTextAsksTheHostNothing) {
    focusField("x");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCalls(), Calls{});
    leave();
}

TEST_P(CameraPointTest, EmptyFieldAsksTheHostNothing) {
    put(L"  ", "x");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCalls(), Calls{"CWnd::SetWindowText"});
    leave();
}

TEST_P(CameraPointTest, TextThatIsNoNumberIsGivenBackAndThenTold) {
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

TEST_P(CameraPointTest, TypingAfterARefusalReplacesAllOfTheText) {
    enter(L"left", "z");
    EXPECT_EQ(balloon(), string(1234));
    workbench::gestures::typeText(bench().toolkit(), L"7");
    EXPECT_EQ(text("z"), L"7");
    press("escape");
    leave();
}

TEST_P(CameraPointTest, EntryThatCanBeReadHidesTheBalloon) {
    enter(L"left", "z");
    EXPECT_EQ(balloon(), string(1234));
    EXPECT_NE(balloonText(), L"");
    enter(L"40", "z");
    EXPECT_EQ(balloonText(), L"");
    leave();
}

TEST_P(CameraPointTest, EntriesReachNoCommandLine) {
    bench().windows().setName(bench().toolkit().frame().commandLine().m_hWnd, "CommandLine");
    enter(L"50", "y");
    put(L"7", "y");
    press("escape");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_TRUE(takeMessagesOf("CommandLine").empty());
    leave();
}

TEST_P(CameraPointTest, TextIsKeptAsADistance) {
    takeJournal();
    focusField("x");
    EXPECT_EQ(takeCallLines({"vxdbDisToF"}), Calls{parseCall(workbench::toUtf8(shownX()))});
    leave();
}

TEST_P(CameraPointTest, TextThatIsNoDistanceIsNotKept) {
    focusField("x");
    leave();
    bench().windows().setText(field("x"), L"left");
    focusField("x");
    press("escape");
    EXPECT_EQ(text("x"), shownX());
    leave();
}

TEST_P(CameraPointTest, LostViewportCountsAsLocked) {
    put(L"50", "x");
    loseViewport();
    press("enter");
    EXPECT_EQ(balloon(), string(1231));
    EXPECT_EQ(text("x"), shownX());
    leave();
}

TEST_P(CameraPointTest, OtherNoticesAndOtherFieldsAreIgnored) {
    focusField("x");
    leave();
    bench().windows().setText(field("x"), L"50");
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
    const double before[] = {own("x"), own("z")};
    put(L"50", "y");
    takeJournal();
    press("enter");
    EXPECT_EQ(
        takeCallLines({"OrbitInProgress", "vxrxServiceIsRegistered", "GetModuleHandle",
                       "GetProcAddress", "vxgsWriteViewToUndoController", "vxgsSetViewParameters"}),
        (Calls{"OrbitInProgress()", "vxrxServiceIsRegistered(\"ZorqVmTools\")",
               "GetModuleHandle(\"VxVmTools.qlx\")",
               std::string("GetProcAddress(\"VxVmTools.qlx\", \"") + GetParam().function + "\")"}));
    EXPECT_DOUBLE_EQ(own("x"), before[0]);
    EXPECT_DOUBLE_EQ(own("y"), 50.0);
    EXPECT_DOUBLE_EQ(own("z"), before[1]);
    EXPECT_EQ(text("y"), L"50") << "the tool's change is the control's own";
    leave();
}

TEST_P(CameraPointTest, UnregisteredServiceStopsTheFollowingToo) {
    startTool();
    fail("vxrxServiceIsRegistered");
    enter(L"50", "x");
    leave();
    send(1736);
    EXPECT_EQ(text("x"), L"50");
    send(1726);
    EXPECT_EQ(text("x"), shownX());
    send(1736);
    setDbQuietly(std::string("viewports.current.") + GetParam().path, point(77.0, 0.0, 0.0));
    send(1736);
    EXPECT_EQ(text("x"), shownX()) << "the mark is not mended";
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
