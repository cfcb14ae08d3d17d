#include "workbench/toolkit/slider_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/gestures/slider_gestures.h"

namespace workbench {
namespace {

using gestures::clickAt;
using gestures::dragSlider;
using gestures::pressKey;
using gestures::releaseSlider;
using testing::ElementsAre;
using testing::IsEmpty;

class SliderWidgetTest : public ToolkitTest {
protected:
    SliderWidgetTest() {
        m_slider.Create(WS_CHILD | WS_VISIBLE, {0, 0, 100, 16}, m_toolPanel, 10001, 2);
        m_slider.SetSliderRange(0, 90);
        m_slider.SetSliderPos(50);
        journal().take();
    }
    /// The positions that the parent was told.
    std::vector<int> told() const {
        std::vector<int> positions;
        for (const Received& message : m_toolPanel->of(WM_QRUI_POSITION)) {
            EXPECT_EQ(message.lParam, reinterpret_cast<LPARAM>(m_slider.m_hWnd));
            EXPECT_EQ(message.wParam >> 16U, 0U);
            positions.push_back(static_cast<std::int16_t>(message.wParam));
        }
        return positions;
    }

    CQrUiProgSliderCtrl m_slider;
};

TEST_F(SliderWidgetTest, SettingThePositionTellsNobody) {
    m_slider.SetSliderPos(7);
    EXPECT_EQ(m_slider.GetSliderPos(), 7);
    EXPECT_THAT(told(), IsEmpty());
}

TEST_F(SliderWidgetTest, PositionsOutsideTheRangeGoToItsNearerEnd) {
    m_slider.SetSliderPos(91);
    EXPECT_EQ(m_slider.GetSliderPos(), 90);
    m_slider.SetSliderPos(-1);
    EXPECT_EQ(m_slider.GetSliderPos(), 0);
}

TEST_F(SliderWidgetTest, ANewRangeMovesTheThumbIntoIt) {
    m_slider.SetSliderRange(-10, 10);
    EXPECT_EQ(m_slider.GetSliderPos(), 10);
}

TEST_F(SliderWidgetTest, ADragTellsEachPositionOnce) {
    EXPECT_TRUE(dragSlider(toolkit(), m_slider.m_hWnd, {60, 60, 40}));
    EXPECT_TRUE(releaseSlider(toolkit(), m_slider.m_hWnd));
    EXPECT_THAT(told(), ElementsAre(60, 40));
    EXPECT_EQ(m_slider.GetSliderPos(), 40);
}

TEST_F(SliderWidgetTest, ADragGoesOnUntilTheButtonIsReleased) {
    dragSlider(toolkit(), m_slider.m_hWnd, {60});
    EXPECT_EQ(toolkit().mouse().captured(), m_slider.m_hWnd);
    dragSlider(toolkit(), m_slider.m_hWnd, {61});
    releaseSlider(toolkit(), m_slider.m_hWnd);
    EXPECT_EQ(toolkit().mouse().captured(), nullptr);
    toolkit().mouse().move(m_slider.m_hWnd, {5, 5});
    EXPECT_THAT(told(), ElementsAre(60, 61));
    EXPECT_FALSE(releaseSlider(toolkit(), m_slider.m_hWnd));
}

TEST_F(SliderWidgetTest, NegativePositionsComeInSixteenBits) {
    m_slider.SetSliderRange(-10, 10);
    dragSlider(toolkit(), m_slider.m_hWnd, {-3});
    EXPECT_THAT(told(), ElementsAre(-3));
}

TEST_F(SliderWidgetTest, ALongRangeIsReachedToThePosition) {
    m_slider.SetSliderRange(0, 1439);
    for (const int position : {1, 700, 701, 1439, 0})
        dragSlider(toolkit(), m_slider.m_hWnd, {position});
    EXPECT_THAT(told(), ElementsAre(1, 700, 701, 1439, 0));
}

TEST_F(SliderWidgetTest, AClickOnTheTrackMovesTheThumbThere) {
    clickAt(toolkit(), m_slider.m_hWnd, {15, 8});
    EXPECT_THAT(told(), ElementsAre(10));
}

TEST_F(SliderWidgetTest, AClickOnTheThumbMovesNothing) {
    clickAt(toolkit(), m_slider.m_hWnd, {57, 8});
    EXPECT_THAT(told(), IsEmpty());
}

TEST_F(SliderWidgetTest, KeysMoveByLinesPagesAndToTheEnds) {
    m_slider.SetSliderLineSize(2);
    m_slider.SetFocus();
    for (const char* key : {"left", "right", "up", "down", "pageup", "pagedown", "home", "end"})
        pressKey(toolkit(), key);
    EXPECT_THAT(told(), ElementsAre(48, 50, 52, 50, 60, 50, 0, 90));
    pressKey(toolkit(), "right");
    EXPECT_EQ(told().size(), 8U);
}

TEST_F(SliderWidgetTest, TheWheelMovesByLines) {
    gestures::turnWheel(toolkit(), m_slider.m_hWnd, {5, 5}, 2);
    gestures::turnWheel(toolkit(), m_slider.m_hWnd, {5, 5}, -1);
    EXPECT_THAT(told(), ElementsAre(52, 51));
}

TEST_F(SliderWidgetTest, ADisabledSliderTakesNoGesture) {
    m_slider.EnableWindow(0);
    EXPECT_FALSE(dragSlider(toolkit(), m_slider.m_hWnd, {10}));
    EXPECT_FALSE(clickAt(toolkit(), m_slider.m_hWnd, {15, 8}));
    EXPECT_THAT(told(), IsEmpty());
}

TEST_F(SliderWidgetTest, AfterTheReleaseTheDrawingViewHasTheFocus) {
    dragSlider(toolkit(), m_slider.m_hWnd, {60});
    EXPECT_EQ(windows().focus(), m_slider.m_hWnd);
    releaseSlider(toolkit(), m_slider.m_hWnd);
    EXPECT_EQ(windows().focus(), frame().drawingView().m_hWnd);
}

TEST_F(SliderWidgetTest, ASliderThatEndsInItsOwnMessageIsSafe) {
    m_toolPanel->answers[WM_QRUI_POSITION] = [this](WPARAM, LPARAM) {
        m_slider.DestroyWindow();
        return LRESULT{0};
    };
    EXPECT_THROW(dragSlider(toolkit(), m_slider.m_hWnd, {10, 20}), std::runtime_error);
    EXPECT_EQ(m_slider.m_hWnd, nullptr);
}

TEST_F(SliderWidgetTest, ThePositionIsNotedUnderTheControlsName) {
    windows().setName(m_toolPanel->m_hWnd, "Fade");
    dragSlider(toolkit(), m_slider.m_hWnd, {60});
    const std::vector<JournalRecord> records = journal().take("control");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].field("name"), Value("Fade"));
    EXPECT_EQ(records[0].field("field"), Value("slider"));
    EXPECT_EQ(records[0].field("old"), Value(50));
    EXPECT_EQ(records[0].field("new"), Value(60));
}

TEST_F(SliderWidgetTest, CreationFailsWithoutAParentOrWhenToldTo) {
    CQrUiProgSliderCtrl other;
    EXPECT_EQ(other.Create(WS_CHILD, {}, nullptr, 1, 2), 0);
    m_workbench.faults().fail("CQrUiProgSliderCtrl::Create");
    EXPECT_EQ(other.Create(WS_CHILD, {}, m_toolPanel, 1, 2), 0);
    EXPECT_EQ(other.m_hWnd, nullptr);
    other.SetSliderPos(3);
    EXPECT_EQ(other.GetSliderPos(), 0);
}

TEST_F(SliderWidgetTest, OutsideItsRangeItStandsAtTheNearerEndAndTheCallIsNotedAsMade) {
    m_slider.SetSliderRange(10, 20);
    journal().take();
    m_slider.SetSliderPos(25);
    EXPECT_EQ(m_slider.GetSliderPos(), 20);
    m_slider.SetSliderPos(-3);
    EXPECT_EQ(m_slider.GetSliderPos(), 10);
    std::vector<Value> told;
    for (const JournalRecord& record : journal().take("call")) {
        if (record.field("name") == Value("CQrUiProgSliderCtrl::SetSliderPos"))
            told.push_back(record.field("args"));
    }
    EXPECT_EQ(told, (std::vector<Value>{Value::List{25}, Value::List{-3}}));
}

}  // namespace
}  // namespace workbench
