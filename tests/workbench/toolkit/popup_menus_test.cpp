#include "workbench/toolkit/popup_menus.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace workbench {
namespace {

MenuLine line(const wchar_t* text, UINT command) {
    MenuLine made;
    made.text = text;
    made.command = command;
    return made;
}

class PopupMenusTest : public testing::Test {
protected:
    PopupMenusTest() {
        MenuLine panels = line(L"Panels", 0);
        panels.children = {line(L"Layers", 1), line(L"3D/Walk", 2)};
        MenuLine grey = line(L"Grey", 3);
        grey.disabled = true;
        MenuLine separator;
        separator.separator = true;
        m_lines = {panels, separator, grey, line(L"Help", 4)};
    }
    std::optional<UINT> choose(const char* path) {
        m_answers.queue("menu", path);
        return m_menus.track(m_lines);
    }

    Answers m_answers;
    PopupMenus m_menus{m_answers};
    std::vector<MenuLine> m_lines;
};

TEST_F(PopupMenusTest, AQueuedPathChooses) {
    EXPECT_EQ(choose("Help"), 4U);
    EXPECT_EQ(choose("Panels/Layers"), 1U);
}

TEST_F(PopupMenusTest, ALabelMayHoldASlash) {
    EXPECT_EQ(choose("Panels/3D/Walk"), 2U);
}

TEST_F(PopupMenusTest, PopupsAndDisabledLinesCannotBeChosen) {
    EXPECT_EQ(choose("Panels"), std::nullopt);
    EXPECT_EQ(choose("Grey"), std::nullopt);
}

TEST_F(PopupMenusTest, AnUnknownPathIsAnError) {
    EXPECT_THROW(choose("Panels/Nothing"), std::invalid_argument);
    EXPECT_THROW(choose(""), std::invalid_argument);
    EXPECT_THROW(choose("Help/Layers"), std::invalid_argument);
}

TEST_F(PopupMenusTest, WithoutAnAnswerNothingIsChosen) {
    EXPECT_EQ(m_menus.track(m_lines), std::nullopt);
}

TEST_F(PopupMenusTest, AGestureAnswersOnceAndFirst) {
    m_answers.queue("menu", "Help");
    m_menus.answerNext([](const std::vector<MenuLine>&) { return std::optional(2U); });
    EXPECT_TRUE(m_menus.isAnswerWaiting());
    EXPECT_EQ(m_menus.track(m_lines), 2U);
    EXPECT_FALSE(m_menus.isAnswerWaiting());
    EXPECT_EQ(m_menus.track(m_lines), 4U);
}

TEST_F(PopupMenusTest, WhoeverShowsMenusComesLast) {
    m_menus.setPresenter([](const std::vector<MenuLine>&) { return std::optional(1U); });
    EXPECT_EQ(choose("Help"), 4U);
    EXPECT_EQ(m_menus.track(m_lines), 1U);
}

TEST_F(PopupMenusTest, WhatStandsInAGreyPopupCannotBeChosen) {
    MenuLine inner;
    inner.text = L"Inner";
    inner.command = 9;
    MenuLine middle;
    middle.text = L"Middle";
    middle.children = {inner};
    MenuLine popup;
    popup.text = L"Popup";
    popup.children = {middle};
    m_lines = {popup};
    EXPECT_EQ(choose("Popup/Middle/Inner"), 9U);
    m_lines[0].disabled = true;
    EXPECT_EQ(choose("Popup/Middle/Inner"), std::nullopt);
    m_menus.answerNext([](const std::vector<MenuLine>&) { return std::optional(9U); });
    EXPECT_EQ(m_menus.track(m_lines), std::nullopt);
}

}  // namespace
}  // namespace workbench
