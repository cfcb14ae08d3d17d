#include "tests/layer/filter_combo_fixture.h"
#include "workbench/toolkit/button_widget.h"
#include "workbench/windows/drawing_context.h"

#include <hostapi/zorq/layers.h>

#include <variant>

namespace {

using workbench::DrawingStep;

/// Test fixture: the check below the tree is on show.
class InverFilterCheckTest : public FilterComboTest {
protected:
    void SetUp() override {
        FilterComboTest::SetUp();
        clickCombo();
        ASSERT_TRUE(isOpen());
        m_check = check();
        takeJournal();
    }
    LRESULT sendCheck(UINT message, WPARAM wParam = 0) {
        return bench().windows().send(m_check, message, wParam, 0);
    }
    void clickCheck() {
        workbench::gestures::clickAt(bench().toolkit(), m_check, {5, 5});
        settle();
    }
    std::vector<DrawingStep> drawing() { return workbench::drawingOf(bench().toolkit(), m_check); }
    CRect client() { return CWnd::FromHandle(m_check)->GetClientRect(); }
    template <class Step>
    std::vector<Step> stepsOf() {
        std::vector<Step> found;
        for (const DrawingStep& step : drawing()) {
            if (const auto* one = std::get_if<Step>(&step))
                found.push_back(*one);
        }
        return found;
    }
    std::size_t invalidations() { return takeCount("CWnd::Invalidate"); }

    HWND m_check = nullptr;
};

struct CheckCase {
    WPARAM state;
    bool checked;
};

class CheckMessageTest : public InverFilterCheckTest,
                         public testing::WithParamInterface<CheckCase> {};

TEST_P(CheckMessageTest, SetsTheFlagHereAndInTheHost) {
    vxedSetInvertLayerFilterFlag(!GetParam().checked);
    takeJournal();
    sendCheck(BM_SETCHECK, GetParam().state);
    EXPECT_EQ(sendCheck(BM_GETCHECK), GetParam().checked ? 1 : 0);
    EXPECT_EQ(vxedGetInvertLayerFilterFlag(), GetParam().checked);
    vxedSetInvertLayerFilterFlag(false);
}

INSTANTIATE_TEST_SUITE_P(States, CheckMessageTest,
                         testing::Values(CheckCase{0, false}, CheckCase{1, true},
                                         CheckCase{2, true}, CheckCase{3, false}));

TEST_F(InverFilterCheckTest, ClickTogglesSetsTheHostAndPaintsWithoutATouchToTheTree) {
    clickCheck();
    EXPECT_EQ(sendCheck(BM_GETCHECK), 1);
    EXPECT_EQ(takeCallLines({"vxedSetInvertLayerFilterFlag", "CTreeCtrl::DeleteAllItems",
                             "VxLyLayerFilterManager::getFilters", "CWnd::Invalidate"}),
              (Calls{"vxedSetInvertLayerFilterFlag(true)",
                     "CWnd::Invalidate(\"LayerFilterComboControl.check\", 1)"}));
    clickCheck();
    EXPECT_EQ(sendCheck(BM_GETCHECK), 0);
    EXPECT_FALSE(vxedGetInvertLayerFilterFlag());
}

TEST_F(InverFilterCheckTest, MouseOverItHighlightsUntilItLeaves) {
    EXPECT_TRUE(stepsOf<workbench::FillStep>().empty());
    workbench::gestures::hoverAt(bench().toolkit(), m_check, {40, 5});
    EXPECT_EQ(invalidations(), 1U);
    const auto fills = stepsOf<workbench::FillStep>();
    ASSERT_EQ(fills.size(), 1U);
    EXPECT_EQ(fills[0].colour, GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(fills[0].rect.left, client().bottom);
    EXPECT_EQ(stepsOf<workbench::TextStep>().at(0).colour, GetSysColor(COLOR_HIGHLIGHTTEXT));
    workbench::gestures::hoverAt(bench().toolkit(), m_check, {41, 5});
    takeJournal();
    workbench::gestures::leave(bench().toolkit());
    EXPECT_EQ(invalidations(), 1U);
    EXPECT_TRUE(stepsOf<workbench::FillStep>().empty());
    EXPECT_EQ(stepsOf<workbench::TextStep>().at(0).colour, GetSysColor(COLOR_WINDOWTEXT));
}

TEST_F(InverFilterCheckTest, DrawsASquareFromWhiteToLightGrey) {
    const int height = client().Height();
    const auto gradients = stepsOf<workbench::GradientStep>();
    ASSERT_EQ(gradients.size(), 1U);
    EXPECT_EQ(gradients[0].rect, (CRect{0, 0, height, height}));
    EXPECT_EQ(gradients[0].left, 0xFFFFFFU);
    EXPECT_EQ(gradients[0].right, 0xCCCCCCU);
}

TEST_F(InverFilterCheckTest, DrawsItsTextBehindTheSquareOnOneLine) {
    const auto texts = stepsOf<workbench::TextStep>();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].text, stringOf(261));
    EXPECT_EQ(texts[0].rect, (CRect{client().bottom + 8, 0, client().right, client().bottom}));
    EXPECT_EQ(texts[0].format, DT_SINGLELINE | DT_VCENTER);
    EXPECT_NE(texts[0].font, 0U);
}

TEST_F(InverFilterCheckTest, DrawsTheMarkInTheMiddleOfTheSquareOnlyIfChecked) {
    EXPECT_TRUE(stepsOf<workbench::PictureStep>().empty());
    clickCheck();
    const auto pictures = stepsOf<workbench::PictureStep>();
    ASSERT_EQ(pictures.size(), 1U);
    const int offset = (client().Height() - 16) / 2;
    EXPECT_EQ(pictures[0].rect, (CRect{offset, offset, offset + 16, offset + 16}));
    clickCheck();
    EXPECT_TRUE(stepsOf<workbench::PictureStep>().empty());
}

TEST_F(InverFilterCheckTest, MissingMarkLeavesTheRestAsItIs) {
    fail("CBitmap::LoadBitmap");
    clickCheck();
    EXPECT_TRUE(stepsOf<workbench::PictureStep>().empty());
    EXPECT_EQ(stepsOf<workbench::TextStep>().size(), 1U);
    bench().faults().unfail("CBitmap::LoadBitmap");
    clickCheck();
}

}  // namespace
