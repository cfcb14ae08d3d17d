#include "workbench/toolkit/tree_widget.h"

#include "tests/workbench/toolkit/dropdown_fixture.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/input_messages.h"

namespace workbench {
namespace {

using Log = std::vector<std::string>;

class TreeWidgetTest : public DropdownTest {
protected:
    TreeWidgetTest() {
        openDropdown();
        tree().log.clear();
        journal().take();
    }

    TestDropdown& dropdown() { return *m_combo.dropdown; }
    TestTree& tree() { return dropdown().tree; }
    VxString selected() { return tree().GetItemText(tree().GetSelectedItem()); }
    bool isOpen(HTREEITEM item) { return widget().items().find(item)->isOpen; }
    void clickLabel(HTREEITEM item) { click(tree(), middle(widget().partsOf(item).label)); }
    std::vector<VxString> shown() {
        std::vector<VxString> texts;
        for (HTREEITEM item = tree().GetFirstVisibleItem(); item != nullptr;
             item = tree().GetNextVisibleItem(item))
            texts.push_back(tree().GetItemText(item));
        return texts;
    }
    /// Begins to edit a label, as the user does.
    void editLabel(HTREEITEM item) {
        tree().SelectItem(item);
        pressKey(kKeyF2);
    }
};

using Texts = std::vector<VxString>;

TEST_F(TreeWidgetTest, OnlyWhatStandsInOpenItemsShows) {
    EXPECT_EQ(shown(), (Texts{L"All", L"Walls", L"doors"}));
    EXPECT_EQ(tree().GetRootItem(), dropdown().all);
    EXPECT_EQ(tree().GetChildItem(dropdown().all), dropdown().walls);
    EXPECT_EQ(tree().GetNextSiblingItem(dropdown().walls), dropdown().doors);
    EXPECT_EQ(tree().GetNextSiblingItem(dropdown().doors), nullptr);
}

TEST_F(TreeWidgetTest, AClickOnALabelSelectsAndSaysWhereItWas) {
    clickLabel(dropdown().doors);
    EXPECT_EQ(selected(), L"doors");
    EXPECT_EQ(tree().log, (Log{"press doors 4"}));
}

TEST_F(TreeWidgetTest, AClickRightOfTheLabelSelectsTheRowAndIsNotOnTheLabel) {
    click(tree(), {TestDropdown::kWidth - 2, kTreeRowHeight + 2});
    EXPECT_EQ(selected(), L"Walls");
    EXPECT_EQ(tree().log, (Log{"press Walls 32"}));
}

TEST_F(TreeWidgetTest, AClickOnAButtonOpensAndClosesWithoutSelecting) {
    const CPoint button = middle(widget().partsOf(dropdown().walls).button);
    click(tree(), button);
    EXPECT_TRUE(isOpen(dropdown().walls));
    EXPECT_EQ(shown(), (Texts{L"All", L"Walls", L"Inner", L"doors"}));
    click(tree(), button);
    EXPECT_FALSE(isOpen(dropdown().walls));
    EXPECT_EQ(tree().GetSelectedItem(), nullptr);
    EXPECT_EQ(tree().log, (Log{"press Walls 16", "press Walls 16"}));
}

TEST_F(TreeWidgetTest, AClickBesideAllItemsSelectsNone) {
    clickLabel(dropdown().doors);
    click(tree(), {20, TestDropdown::kTreeHeight - 2});
    EXPECT_EQ(selected(), L"doors");
    EXPECT_EQ(tree().log.back(), "press  1");
}

TEST_F(TreeWidgetTest, APointLeftOfTheTreeIsToldAsThat) {
    UINT where = 0;
    EXPECT_EQ(tree().HitTest({-1, 5}, &where), nullptr);
    EXPECT_EQ(where, TVHT_TOLEFT);
}

TEST_F(TreeWidgetTest, TwoClicksOnALabelOpenTheItem) {
    toolkit().mouse().doubleClick(tree().m_hWnd, middle(widget().partsOf(dropdown().walls).label));
    EXPECT_TRUE(isOpen(dropdown().walls));
}

TEST_F(TreeWidgetTest, ArrowsMoveAndStopAtTheEnds) {
    pressKey(kKeyDown);
    EXPECT_EQ(selected(), L"All");
    pressKey(kKeyUp);
    EXPECT_EQ(selected(), L"All");
    pressKey(kKeyDown);
    EXPECT_EQ(selected(), L"Walls");
    pressKey(kKeyEnd);
    EXPECT_EQ(selected(), L"doors");
    pressKey(kKeyDown);
    EXPECT_EQ(selected(), L"doors");
    pressKey(kKeyHome);
    EXPECT_EQ(selected(), L"All");
}

TEST_F(TreeWidgetTest, RightOpensAndGoesInLeftClosesAndGoesOut) {
    tree().SelectItem(dropdown().walls);
    pressKey(kKeyRight);
    EXPECT_TRUE(isOpen(dropdown().walls));
    pressKey(kKeyRight);
    EXPECT_EQ(selected(), L"Inner");
    pressKey(kKeyRight);
    EXPECT_EQ(selected(), L"Inner");
    pressKey(kKeyLeft);
    EXPECT_EQ(selected(), L"Walls");
    pressKey(kKeyLeft);
    EXPECT_FALSE(isOpen(dropdown().walls));
    pressKey(kKeyLeft);
    EXPECT_EQ(selected(), L"All");
}

TEST_F(TreeWidgetTest, ALetterGoesToTheNextItemThatBeginsWithIt) {
    type(L"D");
    EXPECT_EQ(selected(), L"doors");
    type(L"w");
    EXPECT_EQ(selected(), L"Walls");
    type(L"x");
    EXPECT_EQ(selected(), L"Walls");
}

TEST_F(TreeWidgetTest, ClosingWhatTheSelectionStandsInSelectsIt) {
    tree().Expand(dropdown().walls, TVE_EXPAND);
    tree().SelectItem(dropdown().inner);
    click(tree(), middle(widget().partsOf(dropdown().all).button));
    EXPECT_EQ(selected(), L"All");
}

TEST_F(TreeWidgetTest, SelectingOpensWhatTheItemStandsIn) {
    EXPECT_TRUE(tree().SelectItem(dropdown().inner));
    EXPECT_TRUE(isOpen(dropdown().walls));
    EXPECT_EQ(tree().entered.size(), 0U);
    EXPECT_EQ(tree().log, Log{});
}

TEST_F(TreeWidgetTest, ADeletedItemTakesThoseBelowAndTheSelectionAlong) {
    tree().SelectItem(dropdown().inner);
    EXPECT_TRUE(tree().DeleteItem(dropdown().walls));
    EXPECT_EQ(tree().GetSelectedItem(), nullptr);
    EXPECT_FALSE(tree().SelectItem(dropdown().inner));
    EXPECT_EQ(tree().GetItemText(dropdown().inner), L"");
    EXPECT_EQ(shown(), (Texts{L"All", L"doors"}));
    EXPECT_TRUE(tree().DeleteAllItems());
    EXPECT_EQ(tree().GetRootItem(), nullptr);
    EXPECT_EQ(tree().GetFirstVisibleItem(), nullptr);
}

TEST_F(TreeWidgetTest, ChildrenAreSortedByTheirTextsWithoutRegardToCase) {
    EXPECT_TRUE(tree().SortChildren(dropdown().all));
    EXPECT_EQ(shown(), (Texts{L"All", L"doors", L"Walls"}));
}

TEST_F(TreeWidgetTest, AnItemGoesBehindTheOneThatIsNamed) {
    EXPECT_NE(tree().InsertItem(L"between", 0, 0, dropdown().all, dropdown().walls), nullptr);
    EXPECT_EQ(tree().InsertItem(L"lost", 0, 0, dropdown().all, dropdown().inner), nullptr);
    EXPECT_EQ(shown(), (Texts{L"All", L"Walls", L"between", L"doors"}));
}

TEST_F(TreeWidgetTest, ALongTreeScrollsToWhatIsSelectedAndByTheWheel) {
    for (int i = 0; i < 10; ++i)
        tree().InsertItem(std::to_wstring(i).c_str(), 0, 0, dropdown().all, TVI_LAST);
    pressKey(kKeyEnd);
    EXPECT_EQ(selected(), L"9");
    EXPECT_EQ(tree().GetItemText(tree().GetFirstVisibleItem()), L"5");
    EXPECT_EQ(widget().partsOf(tree().GetSelectedItem()).label.bottom, 5 * kTreeRowHeight);
    toolkit().mouse().wheel(tree().m_hWnd, {5, 5}, 1);
    EXPECT_EQ(tree().GetItemText(tree().GetFirstVisibleItem()), L"2");
    toolkit().mouse().wheel(tree().m_hWnd, {5, 5}, 9);
    EXPECT_EQ(tree().GetFirstVisibleItem(), dropdown().all);
}

TEST_F(TreeWidgetTest, EnterEndsAnEditingWithTheText) {
    editLabel(dropdown().doors);
    type(L"gates");
    pressKey(VK_RETURN);
    EXPECT_EQ(tree().entered, (std::vector<std::optional<VxString>>{L"gates"}));
    EXPECT_EQ(tree().GetItemText(dropdown().doors), L"gates");
    EXPECT_EQ(CWnd::GetFocus(), &tree());
    EXPECT_EQ(widget().edited(), nullptr);
}

TEST_F(TreeWidgetTest, EscapeEndsAnEditingWithoutAText) {
    editLabel(dropdown().doors);
    type(L"gates");
    pressKey(VK_ESCAPE);
    EXPECT_EQ(tree().entered, (std::vector<std::optional<VxString>>{std::nullopt}));
    EXPECT_EQ(tree().GetItemText(dropdown().doors), L"doors");
    EXPECT_EQ(CWnd::GetFocus(), &tree());
}

TEST_F(TreeWidgetTest, ATextThatIsRefusedIsNotTaken) {
    tree().takesText = 0;
    editLabel(dropdown().doors);
    type(L"gates");
    pressKey(VK_RETURN);
    EXPECT_EQ(tree().GetItemText(dropdown().doors), L"doors");
}

TEST_F(TreeWidgetTest, TheLossOfTheKeyboardEndsAnEditingWithTheText) {
    editLabel(dropdown().doors);
    type(L"gates");
    frame().drawingView().SetFocus();
    EXPECT_EQ(tree().GetItemText(dropdown().doors), L"gates");
    EXPECT_EQ(CWnd::GetFocus(), &frame().drawingView());
}

TEST_F(TreeWidgetTest, AnItemThatGoesTakesItsEditorAlong) {
    editLabel(dropdown().doors);
    tree().DeleteItem(dropdown().doors);
    EXPECT_EQ(tree().entered, (std::vector<std::optional<VxString>>{std::nullopt}));
    EXPECT_EQ(windows().find(tree().m_hWnd)->children.size(), 0U);
}

TEST_F(TreeWidgetTest, AListenerMayRebuildTheTreeWhileATextIsTaken) {
    tree().onEntered = [this] {
        tree().DeleteAllItems();
        tree().InsertItem(L"new", 0, 0, TVI_ROOT, TVI_LAST);
    };
    editLabel(dropdown().doors);
    pressKey(VK_RETURN);
    EXPECT_EQ(shown(), (Texts{L"new"}));
}

TEST_F(TreeWidgetTest, ATreeMayEndWhileATextIsTaken) {
    tree().onEntered = [this] { m_combo.dropdown->DestroyWindow(); };
    editLabel(dropdown().doors);
    pressKey(VK_RETURN);
    EXPECT_EQ(tree().m_hWnd, nullptr);
}

TEST_F(TreeWidgetTest, TheJournalTellsWhatTheUserSeesUnderTheTreesName) {
    clickLabel(dropdown().doors);
    std::vector<std::string> fields;
    for (const JournalRecord& record : journal().take()) {
        if (record.kind == "control")
            fields.push_back(record.field("name").asString() + " " +
                             record.field("field").asString());
    }
    EXPECT_EQ(fields, (Log{"FilterControl.tree selected"}));
}

TEST_F(TreeWidgetTest, PicturesComeFromTheListByTheSelection) {
    CImageList list;
    list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 32);
    list.SetImageCount(3);
    tree().SetImageList(&list, TVSIL_NORMAL);
    const ImageList& known = *windows().gdi().findImageList(list.m_hImageList);
    EXPECT_EQ(widget().pictureOf(dropdown().walls), known.at(1));
    tree().SelectItem(dropdown().walls);
    EXPECT_EQ(widget().pictureOf(dropdown().walls), known.at(2));
    EXPECT_EQ(tree().SetImageList(nullptr, TVSIL_NORMAL), list.m_hImageList);
    EXPECT_EQ(widget().pictureOf(dropdown().walls), nullptr);
}

TEST_F(TreeWidgetTest, WindowTreeTellsTheSelectionAndTheCount) {
    tree().SelectItem(dropdown().walls);
    EXPECT_EQ(widget().describe(*windows().find(tree().m_hWnd)), "\"Walls\" of 4");
}

}  // namespace
}  // namespace workbench
