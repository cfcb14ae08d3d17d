#include "tests/support/call_lines.h"
#include "tests/support/control_bench.h"

#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/window/frame.h>

#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

namespace {

using Steps = std::vector<std::string>;

Steps joined(std::initializer_list<Steps> parts) {
    Steps all;
    for (const Steps& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

Steps window(int id) {
    return {"CQrUiToolPanel::Create(1342177280, object, " + std::to_string(id) + ", 2)",
            "CQrUiToolPanel::OnCreate(object)"};
}

/// A picture in both sizes.
Steps icon(const std::string& key) {
    const std::string start = "QrUiLoadImageFromResource(\"VxDashboardRes.dll\", \"" + key + "\", ";
    return {start + "16, -1)", start + "32, -1)"};
}

/// The gap in front of a field.
const char* const kSeparatorStyle =
    "CQrUiToolPanelItem::SetStyle(\"TPB_VXDA_SLIDER_SEPARATOR\", 4)";

/// Has an item drawn anew.
std::string repaint(const std::string& item) {
    return "CQrUiToolPanelItem::Invalidate(\"" + item + "\")";
}

/// Slider, icon and what belongs to the first field.
Steps row(int sliderId, const std::string& key,
          const Steps& field = {kSeparatorStyle,
                                "CQrUiInputEditCtrl::Create(1350631552, object, 10001, 0)"}) {
    return joined(
        {{"CQrUiProgSliderCtrl::Create(1342177280, object, " + std::to_string(sliderId) + ", 2)"},
         icon(key),
         field});
}

std::string loadString(int number) {
    return "LoadString(" + std::to_string(number) + ")";
}

std::string showText(const std::string& text) {
    return "CWnd::SetWindowText(\"CQrUiInputEditCtrl\", \"" + text + "\")";
}

Steps database() {
    return {"vxdbHostApplicationServices()", "VxDbHostApplicationServices::workingDatabase()"};
}

/// What a control does when it is made.
struct CreationCase {
    const char* name;
    Steps steps;
};

void PrintTo(const CreationCase& row, std::ostream* out) {
    *out << row.name;
}

const char* const kFadeButton = "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON";

CreationCase fadeSlider() {
    return {"LayerLockTransparencySliderControl",
            joined({window(601),
                    row(10001, kFadeButton),
                    {"vxedGetVar(\"LAYLOCKFADECTL\")", "CQrUiProgSliderCtrl::SetSliderPos(50)",
                     loadString(3996)},
                    database(),
                    {showText("      50%"), loadString(3997), loadString(3995),
                     "CWnd::EnableWindow(\"CQrUiProgSliderCtrl\", 1)",
                     "CWnd::EnableWindow(\"CQrUiInputEditCtrl\", 1)"},
                    icon(kFadeButton),
                    {repaint("TPB_LAYER_SLIDERCONTROL1")}})};
}

CreationCase zoomSlider() {
    return {"3DNavZoomSliderControl",
            joined({window(101),
                    row(5004, "RCDATA_3DNAV_SLIDERCONTROL1",
                        {"CQrUiInputEditCtrl::Create(1350631552, object, 10001, 0)"}),
                    {kSeparatorStyle, "CQrUiInputEditCtrl::Create(1350631552, object, 10002, 0)",
                     "CWnd::EnableWindow(\"CQrUiInputEditCtrl\", 1)", loadString(1241),
                     loadString(1243), loadString(1245)}})};
}

CreationCase stepSizeSlider() {
    return {"3DNavStepSizeSliderControl",
            joined({window(102),
                    row(5005, "RCDATA_3DNAV_SLIDERCONTROL2"),
                    {loadString(1227), loadString(1227)},
                    database(),
                    {"VxDbDatabase::stepSize()", "CQrUiProgSliderCtrl::SetSliderPos(154)"},
                    database(),
                    {"vxdbRToS(6.000000, -1, -1)", showText("6.0000"), loadString(1227)}})};
}

CreationCase stepsPerSecSlider() {
    return {"3DNavStepsPerSecSliderControl",
            joined({window(103),
                    row(5006, "RCDATA_3DNAV_SLIDERCONTROL3"),
                    {loadString(1228), loadString(1228)},
                    database(),
                    {"VxDbDatabase::stepsPerSec()", "CQrUiProgSliderCtrl::SetSliderPos(20)"},
                    database(),
                    {"vxedGetVar(\"LUPREC\")", "vxdbRToS(2.000000, 2, 4)", showText("2.0000"),
                     loadString(1228)}})};
}

/// An entry of the list of views.
Steps preset(int text, const std::string& key) {
    return {loadString(text),
            "QrUiLoadImageFromResource(\"VxDashboardRes.dll\", \"" + key + "\", 16, -1)"};
}

/// The list of views of a drawing without named ones.
Steps listOfViews() {
    return joined(
        {{"vxInternalGetCurVPAppliedView()", "CQrUiComboCtrl::ResetContent()", loadString(1237)},
         database(),
         {"VxDbDatabase::getSymbolTable(0)", "VxDbViewTable::newIterator(true, true)",
          "VxDbObject::close()"},
         preset(1211, "RCDATA_3DNAV_VIEW_TOP"),
         preset(1212, "RCDATA_3DNAV_VIEW_BOTTOM"),
         preset(1213, "RCDATA_3DNAV_VIEW_FRONT"),
         preset(1214, "RCDATA_3DNAV_VIEW_BACK"),
         preset(1215, "RCDATA_3DNAV_VIEW_LEFT"),
         preset(1216, "RCDATA_3DNAV_VIEW_RIGHT"),
         preset(1217, "RCDATA_3DNAV_VIEW_SW"),
         preset(1218, "RCDATA_3DNAV_VIEW_SE"),
         preset(1220, "RCDATA_3DNAV_VIEW_NE"),
         preset(1219, "RCDATA_3DNAV_VIEW_NW"),
         {loadString(1221), loadString(1222), "CQrUiComboCtrl::SetCurSel(0)"}});
}

CreationCase viewCombo() {
    return {"3DNavViewComboCtrl",
            joined({window(104),
                    {"CQrUiComboCtrl::Create(1345389091, 200, 300, object, 5007)"},
                    listOfViews(),
                    icon("RCDATA_3DNAV_COMBO"),
                    {loadString(1238), repaint("TPB_3DNAV_COMBO"), loadString(1280)},
                    listOfViews(),
                    {"vxInternalIsCurVPZoomUndoAvailable()"}})};
}

/// A field of a camera point, from its making to its text.
struct Coordinate {
    std::string tip;
    std::string value;  // with six decimals
    std::string text;
};

Steps cameraFields(int firstTip, const std::vector<Coordinate>& coordinates) {
    Steps steps{"CQrToolTipCtrl::Create(object)"};
    for (const Coordinate& coordinate : coordinates) {
        steps.push_back(loadString(firstTip++));
        steps.push_back("CQrToolTipCtrl::AddTool(\"" + coordinate.tip + "\")");
    }
    return steps;
}

Steps cameraTexts(const std::string& getter, const std::vector<Coordinate>& coordinates) {
    Steps steps{"vxedGetVar(\"CVPORT\")",           "vxgsGetGsView(2, false)",
                "vxgsGetGsManager(null)",           "VxGsManager::classFactory()",
                "vxedGetCurViewportObjectId()",     "VxGsClassFactory::createView(2, 4294967321)",
                "vxgsGetViewParameters(2, object)", getter};
    for (const Coordinate& coordinate : coordinates) {
        steps = joined({steps,
                        database(),
                        {"vxdbRToS(" + coordinate.value + ", -1, -1)", showText(coordinate.text)}});
    }
    steps.push_back("VxGsClassFactory::deleteView(object)");
    return steps;
}

Steps cameraStrip(int id) {
    return {"CQrUiCtrlContainer::Create(1342242816, object, " + std::to_string(id) + ")",
            "CQrUiInputEditCtrl::Create(1350631552, object, 5001, 0)",
            "CQrUiInputEditCtrl::Create(1350631552, object, 5002, 0)",
            "CQrUiInputEditCtrl::Create(1350631552, object, 5003, 0)"};
}

CreationCase cameraPosition() {
    const std::vector<Coordinate> fields{
        {"X coordinate of the camera position", "0.000000", "0.0000"},
        {"Y coordinate of the camera position", "0.000000", "0.0000"},
        {"Z coordinate of the camera position", "1.000000", "1.0000"}};
    return {"3DNavPointTriplet1", joined({window(105),
                                          cameraStrip(5008),
                                          icon("RCDATA_3DNAV_POINTTRIPLETPANEL1"),
                                          cameraFields(1274, fields),
                                          {loadString(1235)},
                                          cameraTexts("VxGsView::eyePosition()", fields)})};
}

CreationCase cameraTarget() {
    const std::vector<Coordinate> fields{
        {"X coordinate of the camera target", "0.000000", "0.0000"},
        {"Y coordinate of the camera target", "0.000000", "0.0000"},
        {"Z coordinate of the camera target", "0.000000", "0.0000"}};
    return {"3DNavPointTriplet2", joined({window(106),
                                          cameraStrip(5009),
                                          icon("RCDATA_3DNAV_POINTTRIPLETPANEL2"),
                                          cameraFields(1277, fields),
                                          {loadString(1236)},
                                          cameraTexts("VxGsView::target()", fields)})};
}

CreationCase lineTypes() {
    return {
        "LineTypeControl",
        {"CQrUiToolPanel::Create(1342177280, object, 701, 0)", "CQrUiToolPanel::OnCreate(object)",
         "getVxToolbarControl(object, 0, 0, 220, 400, 2222)",
         "QrUiLoadImageFromResource(\"VxDashboardRes.dll\", \"RCDATA_OPLTYPE_ICON\", 16, -1)"}};
}

class CreationTest : public support::ControlBench,
                     public testing::WithParamInterface<CreationCase> {
protected:
    /// Makes the control once more, in a window of the test's own.
    Steps stepsOfCreation() {
        const std::string name = GetParam().name;
        CQrUiToolPanel parent;
        EXPECT_NE(parent.Create(WS_CHILD | WS_VISIBLE, {0, 0, 200, 100}, AfxGetMainWnd(), 1, 0), 0);
        takeJournal();
        EXPECT_NE(exported<VxDaGetCustomControlFn>("VxDaGetCustomControl")(
                      std::wstring(name.begin(), name.end()).c_str(), parent.m_hWnd),
                  nullptr);
        Steps steps = support::callLines(takeJournal());
        unload();
        // Each string is loaded with the resource module in force.
        std::erase_if(steps, [](const std::string& step) {
            return step.find("ResourceHandle(") != std::string::npos;
        });
        return steps;
    }
};

TEST_P(CreationTest, GoesThroughTheseStepsAndNoOthers) {
    showControl(GetParam().name);
    EXPECT_EQ(stepsOfCreation(), GetParam().steps);
}

INSTANTIATE_TEST_SUITE_P(Controls, CreationTest,
                         testing::Values(fadeSlider(), zoomSlider(), stepSizeSlider(),
                                         stepsPerSecSlider(), viewCombo(), cameraPosition(),
                                         cameraTarget(), lineTypes()));

}  // namespace
