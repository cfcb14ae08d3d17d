#include "workbench/toolkit/edit_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/key_gestures.h"

namespace workbench {
namespace {

using gestures::focusField;
using gestures::pressKey;
using gestures::replaceText;
using gestures::typeText;
using testing::ElementsAre;
using testing::IsEmpty;

class EditWidgetTest : public ToolkitTest {
protected:
    EditWidgetTest() {
        m_edit.Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 20}, m_toolPanel, 10001, 0);
        m_edit.SetWindowText(L"50");
    }
    /// The notifications of edit fields that the parent was sent, as (ID, notification).
    std::vector<std::pair<UINT, UINT>> notified() const {
        std::vector<std::pair<UINT, UINT>> found;
        for (const Received& message : m_toolPanel->of(WM_COMMAND))
            found.emplace_back(LOWORD(message.wParam), HIWORD(message.wParam));
        return found;
    }

    CQrUiInputEditCtrl m_edit;
};

TEST_F(EditWidgetTest, AClickGivesTheFocusAndTellsTheParent) {
    EXPECT_TRUE(focusField(toolkit(), m_edit.m_hWnd));
    EXPECT_THAT(notified(), ElementsAre(std::pair<UINT, UINT>(10001, EN_SETFOCUS)));
    gestures::blur(toolkit());
    EXPECT_EQ(notified().back(), (std::pair<UINT, UINT>(10001, EN_KILLFOCUS)));
}

TEST_F(EditWidgetTest, TypingGoesInAtThePlaceOfTheClick) {
    focusField(toolkit(), m_edit.m_hWnd);
    typeText(toolkit(), L"0");
    EXPECT_EQ(m_edit.GetWindowText(), L"500");
    pressKey(toolkit(), "home");
    typeText(toolkit(), L"-");
    pressKey(toolkit(), "right");
    pressKey(toolkit(), "delete");
    pressKey(toolkit(), "backspace");
    EXPECT_EQ(m_edit.GetWindowText(), L"-0");
}

TEST_F(EditWidgetTest, ReplacingTypesOverAll) {
    focusField(toolkit(), m_edit.m_hWnd);
    replaceText(toolkit(), L"40");
    EXPECT_EQ(m_edit.GetWindowText(), L"40");
    replaceText(toolkit(), L"");
    EXPECT_EQ(m_edit.GetWindowText(), L"");
}

TEST_F(EditWidgetTest, APaddedTextGivesUpItsBlanksWhereItDoesNotFit) {
    auto& widget = *windows().widgetOf<EditWidget>(&m_edit);
    Window& window = *windows().find(m_edit.m_hWnd);
    const auto room = static_cast<std::size_t>((window.rect.Width() - 2 * EditWidget::kTextMargin) /
                                               EditWidget::kCharacterWidth);
    m_edit.SetWindowText(std::wstring(room - 3, L' ') + L"50%");
    EXPECT_EQ(widget.scrolled(window), 0U) << "all of it fits";
    m_edit.SetWindowText(std::wstring(room, L' ') + L"50%");
    EXPECT_EQ(widget.scrolled(window), 3U);
    m_edit.SetWindowText(std::wstring(2, L' ') + std::wstring(room, L'7'));
    EXPECT_EQ(widget.scrolled(window), 2U);
    m_edit.SetWindowText(L"  " + std::wstring(2 * room, L'7'));
    EXPECT_EQ(widget.scrolled(window), 2U) << "beyond its blanks it is shown from its start";
}

TEST_F(EditWidgetTest, ALongTextIsShownFromItsStartUntilItIsEditedAtItsEnd) {
    m_edit.SetWindowText(L"12345678901234567890");
    Window& window = *windows().find(m_edit.m_hWnd);
    auto& widget = static_cast<EditWidget&>(*window.widget);
    EXPECT_EQ(widget.scrolled(window), 0U);
    focusField(toolkit(), m_edit.m_hWnd);
    widget.selectAll(window);
    EXPECT_EQ(widget.scrolled(window), 0U) << "selected as a whole it is read first";
    pressKey(toolkit(), "end");
    EXPECT_GT(widget.scrolled(window), 0U);
    pressKey(toolkit(), "home");
    EXPECT_EQ(widget.scrolled(window), 0U);
}

TEST_F(EditWidgetTest, ATextSetFromOutsideIsTheOneEdited) {
    focusField(toolkit(), m_edit.m_hWnd);
    m_edit.SetWindowText(L"7");
    pressKey(toolkit(), "end");
    typeText(toolkit(), L"5");
    EXPECT_EQ(m_edit.GetWindowText(), L"75");
}

TEST_F(EditWidgetTest, EnterAndEscapeGoOnToTheCommandLine) {
    focusField(toolkit(), m_edit.m_hWnd);
    journal().take();
    pressKey(toolkit(), "enter");
    pressKey(toolkit(), "escape");
    std::vector<Value> keys;
    for (const JournalRecord& record : journal().take("message")) {
        if (record.field("control") == Value("CommandLine"))
            keys.push_back(record.field("wparam"));
    }
    EXPECT_THAT(keys, ElementsAre(Value(13), Value(27)));
    EXPECT_EQ(m_edit.GetWindowText(), L"50");
}

TEST_F(EditWidgetTest, ADisabledFieldTakesNoFocus) {
    m_edit.EnableWindow(0);
    EXPECT_FALSE(focusField(toolkit(), m_edit.m_hWnd));
    EXPECT_THAT(notified(), IsEmpty());
}

TEST_F(EditWidgetTest, AHandlerMayChangeTheFocusAndTheText) {
    m_toolPanel->answers[WM_COMMAND] = [this](WPARAM, LPARAM) {
        m_edit.SetWindowText(L"told");
        return LRESULT{0};
    };
    focusField(toolkit(), m_edit.m_hWnd);
    EXPECT_EQ(m_edit.GetWindowText(), L"told");
}

TEST_F(EditWidgetTest, CreationCanBeToldToFail) {
    CQrUiInputEditCtrl other;
    m_workbench.faults().fail("CQrUiInputEditCtrl::Create", {}, 1);
    EXPECT_EQ(other.Create(WS_CHILD, {}, m_toolPanel, 1, 0), 0);
    EXPECT_NE(other.Create(WS_CHILD, {}, m_toolPanel, 1, 0), 0);
}

TEST_F(EditWidgetTest, ASelectionIsFromOnePlaceToAnother) {
    const auto replacedBy = [this](int first, int last) {
        m_edit.SetWindowText(L"12345");
        focusField(toolkit(), m_edit.m_hWnd);
        m_edit.SendMessage(EM_SETSEL, static_cast<WPARAM>(first), last);
        typeText(toolkit(), L"x");
        return m_edit.GetWindowText();
    };
    EXPECT_EQ(replacedBy(0, -1), L"x");
    EXPECT_EQ(replacedBy(1, 3), L"1x45");
    EXPECT_EQ(replacedBy(3, 1), L"1x45");
    EXPECT_EQ(replacedBy(2, 2), L"12x345");
    EXPECT_EQ(replacedBy(3, -1), L"123x");
    EXPECT_EQ(replacedBy(4, 99), L"1234x");
}

TEST_F(EditWidgetTest, ASelectionFromTheEndIsNone) {
    m_edit.SetWindowText(L"12345");
    focusField(toolkit(), m_edit.m_hWnd);
    m_edit.SendMessage(EM_SETSEL, 1, 3);
    m_edit.SendMessage(EM_SETSEL, static_cast<WPARAM>(-1), 0);
    typeText(toolkit(), L"x");
    EXPECT_EQ(m_edit.GetWindowText(), L"123x45");
}

}  // namespace
}  // namespace workbench
