#include "module/control_table.h"

#include "controls/toolbar_group_ctrl.h"
#include "layer/filter_combo.h"
#include "layer/layer_state_combo.h"
#include "layer/locked_layer_fade_slider.h"
#include "module/control_manager.h"
#include "nav3d/camera_point.h"
#include "nav3d/step_slider.h"
#include "nav3d/view_combo.h"
#include "nav3d/zoom_slider.h"
#include "tests/palette/palette_fixture.h"
#include "text/text_height_combo.h"

#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/window/frame.h>

#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

namespace {

class ControlTableTest : public testing::TestWithParam<const wchar_t*> {};

TEST_P(ControlTableTest, GivesItsOwnSpellingOfAName) {
    const ControlTableRow* row = findControlRow(GetParam());
    ASSERT_NE(row, nullptr);
    EXPECT_STREQ(row->name, L"LayerLockTransparencySliderControl");
    EXPECT_NE(row->factory, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Spellings, ControlTableTest,
                         testing::Values(L"LayerLockTransparencySliderControl",
                                         L"layerlocktransparencyslidercontrol",
                                         L"LAYERLOCKTRANSPARENCYSLIDERCONTROL"));

class UnknownControlTest : public testing::TestWithParam<const wchar_t*> {};

TEST_P(UnknownControlTest, HasNoRow) {
    EXPECT_EQ(findControlRow(GetParam()), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Names, UnknownControlTest,
                         testing::Values(L"", L"LayerLockTransparencySlider",
                                         L"LayerLockTransparencySliderControl ",
                                         L"CVxDaLockedLayerTransparencySliderCtrl"));

// Every row

template <class Control>
bool isExactly(const CWnd& window) {
    return typeid(window) == typeid(Control);
}

struct RowCase {
    const wchar_t* name;
    bool (*isOfItsClass)(const CWnd&);
    const char* creation;  // of its window: style, parent, ID, toolkit style
};

class ControlRowTest : public PaletteTest, public testing::WithParamInterface<RowCase> {
protected:
    void SetUp() override {
        load();
        m_parent = std::make_unique<CQrUiToolPanel>();
        ASSERT_NE(m_parent->Create(WS_CHILD | WS_VISIBLE, kPlace, AfxGetMainWnd(), 1, 0), 0);
        forget();
    }
    void TearDown() override {
        m_parent.reset();
        PaletteTest::TearDown();
    }
    std::unique_ptr<CWnd> make(const wchar_t* name) {
        return findControlRow(name)->factory(m_parent.get(), kPlace, name, &m_controls);
    }

    static constexpr CRect kPlace{0, 0, 200, 60};
    std::unique_ptr<CQrUiToolPanel> m_parent;
    CVxDaControlMgr m_controls;
};

TEST_P(ControlRowTest, MakesItsControlWithItsWindow) {
    const std::unique_ptr<CWnd> control = make(GetParam().name);
    ASSERT_NE(control, nullptr);
    EXPECT_TRUE(GetParam().isOfItsClass(*control)) << typeid(*control).name();
    EXPECT_EQ(control->GetParent(), m_parent.get());
    EXPECT_EQ(control->GetWindowRect().Width(), kPlace.Width());
    const std::vector<std::string> made = takeLines({"CQrUiToolPanel::Create"});
    ASSERT_FALSE(made.empty());
    EXPECT_EQ(made.front(), std::string("CQrUiToolPanel::Create") + GetParam().creation);
}

TEST_P(ControlRowTest, MakesNothingWithoutAWindow) {
    fail("CQrUiToolPanel::Create");
    EXPECT_EQ(make(GetParam().name), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Controls, ControlRowTest,
    testing::Values(RowCase{L"LayerLockTransparencySliderControl",
                            isExactly<CVxDaLockedLayerTransparencySliderCtrl>,
                            "(1342177280, object, 601, 2)"},
                    RowCase{L"3DNavZoomSliderControl", isExactly<CVxDa3DNavZoomSliderCtrl>,
                            "(1342177280, object, 101, 2)"},
                    RowCase{L"3DNavStepSizeSliderControl", isExactly<CVxDa3DNavStepSizeSliderCtrl>,
                            "(1342177280, object, 102, 2)"},
                    RowCase{L"3DNavStepsPerSecSliderControl",
                            isExactly<CVxDa3DNavStepsPerSecSliderCtrl>,
                            "(1342177280, object, 103, 2)"},
                    RowCase{L"3DNavViewComboCtrl", isExactly<CVxDa3DNavViewComboCtrl>,
                            "(1342177280, object, 104, 2)"},
                    RowCase{L"3DNavPointTriplet1", isExactly<CVxDa3DNavCameraEyePointCtrl>,
                            "(1342177280, object, 105, 2)"},
                    RowCase{L"3DNavPointTriplet2", isExactly<CVxDa3DNavCameraTargetPointCtrl>,
                            "(1342177280, object, 106, 2)"}));

class ComboRowTest : public ControlRowTest {};

TEST_P(ComboRowTest, MakesItsControlWithItsWindow) {
    const std::unique_ptr<CWnd> control = make(GetParam().name);
    ASSERT_NE(control, nullptr);
    EXPECT_TRUE(GetParam().isOfItsClass(*control)) << typeid(*control).name();
    EXPECT_EQ(control->GetParent(), m_parent.get());
    EXPECT_EQ(control->GetWindowRect().Width(), kPlace.Width());
    EXPECT_EQ(
        takeLines({"CQrUiComboCtrl::Create"}),
        std::vector<std::string>{std::string("CQrUiComboCtrl::Create") + GetParam().creation});
}

TEST_P(ComboRowTest, MakesNothingWithoutAWindow) {
    fail("CQrUiComboCtrl::Create");
    EXPECT_EQ(make(GetParam().name), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Controls, ComboRowTest,
    testing::Values(RowCase{L"LayerStateComboControl", isExactly<CVxDaLayerStateComboCtrl>,
                            "(1345389091, 200, 300, object, 602)"},
                    RowCase{L"LayerFilterComboControl", isExactly<CVxDaFilterComboCtrl>,
                            "(1345389091, 200, 300, object, 603)"},
                    RowCase{L"TextHeightComboControl", isExactly<CVxDaTextHeightComboCtrl>,
                            "(1345389091, 200, 300, object, 801)"}));

std::vector<RowCase> hostControlRows() {
    std::vector<RowCase> rows;
    for (const wchar_t* name :
         {L"LayerControl", L"LineTypeControl", L"OPTColorControl", L"LineWeightControl",
          L"RefblknameControl", L"ViewControl", L"NamedViewControl", L"ViewportScaleControl",
          L"PlotStyleControl", L"UCSControl", L"DimStyleControl", L"TxtStyleControl",
          L"TblStyleControl", L"WorkspacesControl", L"UndoSkinnyButtonControl",
          L"RedoSkinnyButtonControl", L"MldStyleControl", L"FindTextControl"}) {
        rows.push_back({name, isExactly<CVxDaToolbarGroupCtrl>, "(1342177280, object, 701, 0)"});
    }
    return rows;
}

INSTANTIATE_TEST_SUITE_P(HostControls, ControlRowTest, testing::ValuesIn(hostControlRows()));

}  // namespace
