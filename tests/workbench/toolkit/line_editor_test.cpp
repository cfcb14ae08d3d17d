#include "workbench/toolkit/line_editor.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

class LineEditorTest : public testing::Test {
protected:
    void type(const std::wstring& text) {
        for (const wchar_t character : text)
            m_editor.insert(character);
    }
    LineEditor m_editor;
};

TEST_F(LineEditorTest, CharactersGoInAtTheCaret) {
    type(L"ac");
    m_editor.moveLeft(false);
    type(L"b");
    EXPECT_EQ(m_editor.text(), L"abc");
    EXPECT_EQ(m_editor.caret(), 2U);
}

TEST_F(LineEditorTest, ACharacterReplacesTheSelection) {
    type(L"old");
    m_editor.selectAll();
    type(L"n");
    EXPECT_EQ(m_editor.text(), L"n");
    EXPECT_EQ(m_editor.anchor(), m_editor.caret());
}

TEST_F(LineEditorTest, BackspaceRemovesBeforeTheCaretAndStopsAtTheStart) {
    type(L"ab");
    m_editor.moveLeft(false);
    m_editor.backspace();
    m_editor.backspace();
    EXPECT_EQ(m_editor.text(), L"b");
}

TEST_F(LineEditorTest, EraseRemovesBehindTheCaretAndStopsAtTheEnd) {
    type(L"ab");
    m_editor.moveTo(1, false);
    m_editor.erase();
    m_editor.erase();
    EXPECT_EQ(m_editor.text(), L"a");
}

TEST_F(LineEditorTest, BothRemoveASelectionWhole) {
    type(L"abcd");
    m_editor.moveTo(1, false);
    m_editor.moveTo(3, true);
    m_editor.backspace();
    EXPECT_EQ(m_editor.text(), L"ad");
    m_editor.selectAll();
    m_editor.erase();
    EXPECT_EQ(m_editor.text(), L"");
}

TEST_F(LineEditorTest, TheCaretStaysWithinTheText) {
    type(L"ab");
    m_editor.moveRight(false);
    EXPECT_EQ(m_editor.caret(), 2U);
    m_editor.moveTo(0, false);
    m_editor.moveLeft(true);
    EXPECT_EQ(m_editor.caret(), 0U);
}

TEST_F(LineEditorTest, AShorterTextFromOutsideMovesCaretAndAnchorIntoIt) {
    type(L"long text");
    m_editor.selectAll();
    m_editor.setText(L"ab");
    EXPECT_EQ(m_editor.caret(), 2U);
    EXPECT_EQ(m_editor.anchor(), 0U);
}

}  // namespace
}  // namespace workbench
