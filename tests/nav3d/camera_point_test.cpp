#include "tests/nav3d/camera_fixture.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/background_painter.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/tool_panel_item.h>

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using testing::Contains;
using Calls = std::vector<std::string>;

INSTANTIATE_TEST_SUITE_P(Controls, CameraPointTest, testing::Values(kEyeCase, kTargetCase));

/// The control stands alone on its panel, so that what is called is its own doing.
class LoneCameraPointTest : public CameraPointTest {
protected:
    void SetUp() override {
        useMenuOf(GetParam().control);
        CameraPointTest::SetUp();
    }
};

INSTANTIATE_TEST_SUITE_P(Controls, LoneCameraPointTest, testing::Values(kEyeCase, kTargetCase));

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
        bench().windows().changes().setObserver([this](HWND handle) {
            const workbench::Window* made = bench().windows().find(handle);
            if (made == nullptr || made->className != std::string("CQrToolTipCtrl") ||
                !made->name.empty())
                return;
            bench().windows().setName(handle, "Tip");
        });
        rebuildControl();
        bench().windows().changes().setObserver(nullptr);
    }
    void hoverOver(const std::string& name) {
        workbench::gestures::hoverAt(bench().toolkit(), field(name), {2, 2});
    }
    std::wstring shownTip() { return bench().toolkit().toolTips().shown(); }
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
    EXPECT_EQ(told(1025), (Told{{1, 0}}));
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

TEST_P(FieldTipTest, ShowsAFieldsTextOnceTheMouseHasRestedOverIt) {
    hoverOver("y");
    EXPECT_EQ(shownTip(), L"");
    bench().windows().advance(500);
    EXPECT_EQ(shownTip(), stringOf(GetParam().firstTip + 1));
    hoverOver("z");
    EXPECT_EQ(shownTip(), L"");
    bench().windows().advance(500);
    EXPECT_EQ(shownTip(), stringOf(GetParam().firstTip + 2));
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

TEST_P(LoneCameraPointTest, WithoutAViewportTheFieldsStayAsTheyAre) {
    setDbQuietly(std::string("viewports.current.") + GetParam().path, point(77.0, 0.0, 0.0));
    loseViewport();
    settle();
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

TEST_P(CameraPointTest, TemporaryViewOfARefreshIsGivenBack) {
    tellOf(L"CVPORT");
    EXPECT_EQ(takeCallLines({"vxgsGetGsView", "VxGsClassFactory::deleteView"}),
              (Calls{"vxgsGetGsView(2, false)", "VxGsClassFactory::deleteView(object)"}));
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

TEST_P(LoneCameraPointTest, ToolMovesThePoint) {
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

}  // namespace
