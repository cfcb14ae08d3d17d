#include "workbench/toolkit/palette_set_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/menu_gestures.h"

namespace workbench {
namespace {

using gestures::chooseFromContextMenu;
using gestures::readContextMenu;
using testing::ElementsAre;
using testing::IsEmpty;

class PaletteSetWidgetTest : public ToolkitTest {
protected:
    CRect paletteRect() { return windows().find(m_palette->m_hWnd)->rect; }
};

TEST_F(PaletteSetWidgetTest, APaletteFillsTheSetBelowTheGrip) {
    const CRect client = m_set->GetClientRect();
    EXPECT_EQ(paletteRect(), (CRect{0, 13, client.Width(), client.Height()}));
}

TEST_F(PaletteSetWidgetTest, AFloatingSetHasItsCaptionOutside) {
    frame().floatAt(*m_set, {100, 100, 340, 500});
    const CRect client = m_set->GetClientRect();
    EXPECT_EQ(paletteRect(), client);
    const CSize border = m_set->GetNonClientSize();
    EXPECT_EQ(client.Width() + border.cx, 240);
    EXPECT_EQ(client.Height() + border.cy, 400);
}

TEST_F(PaletteSetWidgetTest, TheContextMenuEndsWithASeparatorBeforeForeignLines) {
    std::vector<std::wstring> texts;
    for (const MenuLine& line : readContextMenu(toolkit(), m_set->m_hWnd))
        texts.push_back(line.separator ? L"-" : line.text);
    EXPECT_THAT(texts, ElementsAre(L"Move", L"Size", L"Close", L"-", L"Allow docking", L"-"));
}

TEST_F(PaletteSetWidgetTest, CloseOnlyHides) {
    m_set->received.clear();
    bool wasHidden = false;
    m_set->answers[WM_WINDOWPOSCHANGED] = [&](WPARAM, LPARAM record) {
        wasHidden = (reinterpret_cast<const WINDOWPOS*>(record)->flags & SWP_HIDEWINDOW) != 0;
        return LRESULT{0};
    };
    chooseFromContextMenu(toolkit(), m_set->m_hWnd, L"Close");
    EXPECT_TRUE(wasHidden);
    EXPECT_NE(m_set->m_hWnd, nullptr);
    EXPECT_FALSE(m_set->IsWindowVisible());
}

TEST_F(PaletteSetWidgetTest, DockingCanBeForbiddenAndAllowedAgain) {
    chooseFromContextMenu(toolkit(), m_set->m_hWnd, L"Allow docking");
    EXPECT_FALSE(readContextMenu(toolkit(), m_set->m_hWnd)[4].checked);
    EXPECT_FALSE(frame().dock(*m_set, Edge::Left));
    chooseFromContextMenu(toolkit(), m_set->m_hWnd, L"Allow docking");
    EXPECT_TRUE(readContextMenu(toolkit(), m_set->m_hWnd)[4].checked);
    EXPECT_TRUE(frame().dock(*m_set, Edge::Left));
}

TEST_F(PaletteSetWidgetTest, MoveAndSizeTakeTheUsersNumbers) {
    m_workbench.answers().queue("dialog", Value::Table{{"x", 10}, {"y", 20}});
    chooseFromContextMenu(toolkit(), m_set->m_hWnd, L"Move");
    ASSERT_TRUE(m_set->IsFloating());
    EXPECT_EQ(frame().placeOf(*m_set).rect.left, 10);
    EXPECT_EQ(frame().placeOf(*m_set).rect.top, 20);
    m_workbench.answers().queue("dialog", Value::Table{{"width", 300}, {"height", 400}});
    chooseFromContextMenu(toolkit(), m_set->m_hWnd, L"Size");
    EXPECT_EQ(frame().placeOf(*m_set).rect, (CRect{10, 20, 310, 420}));
}

TEST_F(PaletteSetWidgetTest, MoveWithoutAnAnswerLeavesTheSetAlone) {
    chooseFromContextMenu(toolkit(), m_set->m_hWnd, L"Move");
    EXPECT_FALSE(m_set->IsFloating());
}

TEST_F(PaletteSetWidgetTest, TheSetOwnsItsPalettes) {
    EXPECT_EQ(m_palette->GetPaletteSet(), m_set.get());
    m_set.reset();
    EXPECT_EQ(m_panelSet.m_hWnd, nullptr);
    EXPECT_EQ(toolkit().paletteSets().size(), 0U);
    EXPECT_THAT(frame().bars(), IsEmpty());
}

TEST_F(PaletteSetWidgetTest, APaletteThatWasNeverAddedHasNoSet) {
    CQrUiPalette lonely;
    EXPECT_EQ(lonely.GetPaletteSet(), nullptr);
    EXPECT_EQ(lonely.Create(nullptr), 0);
}

TEST_F(PaletteSetWidgetTest, CreationCanBeToldToFail) {
    CQrUiPaletteSet set(0);
    m_workbench.faults().fail("CQrUiPaletteSet::Create");
    EXPECT_EQ(set.Create(L"x", 0, {0, 0, 9, 9}, &frame().frame(), 0), 0);
    set.RestoreControlBar(kRightDockBar, {0, 0, 9, 9});
    EXPECT_EQ(set.GetDockingFrame(), nullptr);
}

}  // namespace
}  // namespace workbench
