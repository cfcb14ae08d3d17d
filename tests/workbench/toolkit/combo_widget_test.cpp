#include "workbench/toolkit/combo_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/toolkit/input_messages.h"

namespace workbench {
namespace {

class ComboWidgetTest : public ToolkitTest {
protected:
    ComboWidgetTest() {
        m_combo.Create(WS_CHILD | WS_VISIBLE, {0, 0, 100, 300}, m_toolPanel, 7);
        for (const wchar_t* text : {L"one", L"-", L"two", L"three"}) {
            auto entry = std::make_unique<QRUI_COMBO_CTRL_ITEM>();
            entry->text = text;
            entry->separator = entry->text == L"-" ? 1 : 0;
            m_combo.AddItem(entry.release());
        }
        m_combo.SetCurSel(0);
        m_toolPanel->received.clear();
    }
    Window& window() { return *windows().find(m_combo.m_hWnd); }
    ComboWidget& widget() { return *windows().widgetOf<ComboWidget>(&m_combo); }
    /// What the parent was told, by its codes.
    std::vector<UINT> told() {
        std::vector<UINT> codes;
        for (const Received& each : m_toolPanel->of(WM_COMMAND))
            codes.push_back(HIWORD(each.wParam));
        m_toolPanel->received.clear();
        return codes;
    }
    void press(WPARAM key) { windows().send(m_combo.m_hWnd, WM_KEYDOWN, key, 0); }

    CQrUiComboCtrl m_combo;
};

using Codes = std::vector<UINT>;

TEST_F(ComboWidgetTest, FieldIsAsHighAsAFieldWhateverTheListIs) {
    EXPECT_EQ(m_combo.GetWindowRect().Height(), ComboWidget::kHeight);
}

TEST_F(ComboWidgetTest, SelectingTellsNobody) {
    m_combo.SetCurSel(2);
    EXPECT_EQ(m_combo.GetCurSel(), 2);
    m_combo.SetCurSel(9);
    EXPECT_EQ(m_combo.GetCurSel(), -1);
    EXPECT_TRUE(told().empty());
}

TEST_F(ComboWidgetTest, ChoiceIsToldBeforeTheListGoes) {
    EXPECT_TRUE(widget().open(window()));
    EXPECT_FALSE(widget().open(window()));
    EXPECT_TRUE(widget().choose(window(), 2));
    EXPECT_EQ(told(), (Codes{CBN_DROPDOWN, CBN_SELENDOK, CBN_CLOSEUP, CBN_SELCHANGE}));
    EXPECT_FALSE(widget().isOpen());
}

TEST_F(ComboWidgetTest, SameChoiceIsNoChange) {
    widget().open(window());
    widget().choose(window(), 0);
    EXPECT_EQ(told(), (Codes{CBN_DROPDOWN, CBN_SELENDOK, CBN_CLOSEUP}));
}

TEST_F(ComboWidgetTest, SeparatorsAndNothingCannotBeChosen) {
    widget().open(window());
    EXPECT_FALSE(widget().choose(window(), 1));
    EXPECT_FALSE(widget().choose(window(), 4));
    EXPECT_FALSE(widget().choose(window(), -1));
    EXPECT_TRUE(widget().isOpen());
    EXPECT_EQ(m_combo.GetCurSel(), 0);
}

TEST_F(ComboWidgetTest, ArrowsSkipSeparatorsAndEnterChooses) {
    widget().open(window());
    press(kKeyDown);
    press(VK_RETURN);
    EXPECT_EQ(m_combo.GetCurSel(), 2);
    EXPECT_FALSE(widget().isOpen());
}

TEST_F(ComboWidgetTest, EscapeClosesWithoutAChoice) {
    widget().open(window());
    press(kKeyEnd);
    press(VK_ESCAPE);
    EXPECT_EQ(m_combo.GetCurSel(), 0);
    EXPECT_EQ(told(), (Codes{CBN_DROPDOWN, CBN_CLOSEUP}));
}

TEST_F(ComboWidgetTest, ArrowInTheClosedFieldChoosesAtOnce) {
    press(kKeyDown);
    EXPECT_EQ(m_combo.GetCurSel(), 2);
    EXPECT_EQ(told(), (Codes{CBN_SELENDOK, CBN_SELCHANGE}));
    press(kKeyHome);
    EXPECT_EQ(m_combo.GetCurSel(), 0);
    press(kKeyUp);
    EXPECT_EQ(m_combo.GetCurSel(), 0);
}

TEST_F(ComboWidgetTest, ResettingEndsTheEntriesAndTheirImages) {
    auto entry = std::make_unique<QRUI_COMBO_CTRL_ITEM>();
    entry->image = toolkit().pictures().add("picture", {});
    m_combo.AddItem(entry.release());
    const std::size_t live = toolkit().pictures().liveCount();
    m_combo.ResetContent();
    EXPECT_EQ(m_combo.GetCount(), 0);
    EXPECT_EQ(m_combo.GetCurSel(), -1);
    EXPECT_EQ(m_combo.GetItem(0), nullptr);
    EXPECT_EQ(toolkit().pictures().liveCount(), live - 1);
}

TEST_F(ComboWidgetTest, TreeTellsTheChoiceAndTheCount) {
    EXPECT_EQ(widget().describe(window()), "\"one\" of 4");
}

TEST_F(ComboWidgetTest, ADeletedEntryLeavesTheSelectionOnItsEntry) {
    m_combo.SetCurSel(2);
    EXPECT_EQ(m_combo.DeleteItem(0), 3);
    EXPECT_EQ(m_combo.GetCurSel(), 1);
    EXPECT_EQ(m_combo.GetItem(1)->text, L"two");
    EXPECT_EQ(m_combo.DeleteItem(1), 2);
    EXPECT_EQ(m_combo.GetCurSel(), -1);
    EXPECT_EQ(m_combo.DeleteItem(2), -1);
    EXPECT_EQ(m_combo.DeleteItem(-1), -1);
    EXPECT_TRUE(told().empty());
}

TEST_F(ComboWidgetTest, ADeletedEntryTakesItsImageAlong) {
    auto entry = std::make_unique<QRUI_COMBO_CTRL_ITEM>();
    entry->image = toolkit().pictures().add("picture", {});
    const int index = m_combo.AddItem(entry.release());
    const std::size_t live = toolkit().pictures().liveCount();
    m_combo.DeleteItem(index);
    EXPECT_EQ(toolkit().pictures().liveCount(), live - 1);
}

TEST_F(ComboWidgetTest, AMessageResetsTheEntriesToo) {
    m_combo.SendMessage(CB_RESETCONTENT);
    EXPECT_EQ(m_combo.GetCount(), 0);
    EXPECT_EQ(m_combo.GetCurSel(), -1);
}

}  // namespace
}  // namespace workbench
