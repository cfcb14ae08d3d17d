#include "workbench/desktop/mirror/key_input.h"

#include "tests/workbench/desktop/mirror/mirror_fixture.h"

#include <QClipboard>

namespace workbench::desktop {

class KeyInputTest : public MirrorTest {
protected:
    KeyInputTest() { click(*edit()); }
    MirrorWidget* edit() { return widget("3DNavPointTriplet1", "x"); }
    void replace(const char* text) {
        pressKey(*edit(), Qt::Key_A, QStringLiteral("\x01"), Qt::ControlModifier);
        typeText(*edit(), QString::fromLatin1(text));
    }
};

TEST_F(KeyInputTest, CharactersGoIntoTheField) {
    replace("12.5");
    EXPECT_EQ(edit()->host()->text, L"12.5");
    pressKey(*edit(), Qt::Key_Backspace);
    pressKey(*edit(), Qt::Key_Home);
    pressKey(*edit(), Qt::Key_Delete);
    EXPECT_EQ(edit()->host()->text, L"2.");
}

TEST_F(KeyInputTest, ShiftWithAnArrowSelects) {
    replace("125");
    pressKey(*edit(), Qt::Key_Left, {}, Qt::ShiftModifier);
    typeText(*edit(), QStringLiteral("9"));
    EXPECT_EQ(edit()->host()->text, L"129");
}

TEST_F(KeyInputTest, CutCopyAndPasteUseTheClipboard) {
    replace("77");
    pressKey(*edit(), Qt::Key_A, QStringLiteral("\x01"), Qt::ControlModifier);
    pressKey(*edit(), Qt::Key_X, QStringLiteral("\x18"), Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("77"));
    EXPECT_EQ(edit()->host()->text, L"");
    pressKey(*edit(), Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
    pressKey(*edit(), Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
    EXPECT_EQ(edit()->host()->text, L"7777");
    pressKey(*edit(), Qt::Key_C, QStringLiteral("\x03"), Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("77")) << "nothing is selected";
}

TEST_F(KeyInputTest, TabCommitsTheFieldAndGoesToTheNext) {
    replace("30");
    pressKey(*edit(), Qt::Key_Tab);
    rest();
    EXPECT_EQ(windows().focus(), window("3DNavPointTriplet1", "y"));
    EXPECT_EQ(edit()->host()->text, L"30");
}

TEST_F(KeyInputTest, EscapeGivesTheKeyboardBackToTheDrawing) {
    replace("12.5");
    pressKey(*edit(), Qt::Key_Escape);
    EXPECT_EQ(windows().focus(), m_stage.toolkit.frame().drawingView().m_hWnd);
    EXPECT_EQ(edit()->host()->text, L"24.000");
}

TEST_F(KeyInputTest, ShortcutsOfTheProgramPassByButThoseOfFieldsDont) {
    const auto isOwn = [this](int key, Qt::KeyboardModifiers held, const char* text) {
        return isOwnKey(m_stage,
                        QKeyEvent(QEvent::ShortcutOverride, key, held, QString::fromLatin1(text)));
    };
    EXPECT_TRUE(isOwn(Qt::Key_5, Qt::NoModifier, "5"));
    EXPECT_TRUE(isOwn(Qt::Key_Tab, Qt::NoModifier, "\t"));
    EXPECT_TRUE(isOwn(Qt::Key_V, Qt::ControlModifier, "\x16"));
    EXPECT_FALSE(isOwn(Qt::Key_F6, Qt::NoModifier, ""));
    EXPECT_FALSE(isOwn(Qt::Key_F, Qt::ControlModifier, "\x06"));
    windows().setFocus(window(kFade, "slider"));
    EXPECT_FALSE(isOwn(Qt::Key_V, Qt::ControlModifier, "\x16"));
}

TEST_F(KeyInputTest, TheSpaceBarClicksTheMarkedToolAndRollsAPanelUp) {
    ItemWidget* tool = item(L"ID_Perspective_Projection");
    windows().setFocus(tool->toolPanel());
    while (!tool->isMarked())
        pressKey(*widget(tool->toolPanel()), Qt::Key_Right);
    pressKey(*widget(tool->toolPanel()), Qt::Key_Space, QStringLiteral(" "));
    EXPECT_EQ(sent(), std::vector<std::string>{"_perspective\n1\n"});
    const HWND layers = findPanels(windows(), L"Layers").at(0)->m_hWnd;
    windows().setFocus(layers);
    pressKey(*widget(layers), Qt::Key_Space, QStringLiteral(" "));
    EXPECT_FALSE(windows().isOnScreen(window(kFade, "slider")));
    EXPECT_EQ(windows().focus(), layers);
    pressKey(*widget(layers), Qt::Key_Escape);
    EXPECT_EQ(windows().focus(), m_stage.toolkit.frame().drawingView().m_hWnd);
}

TEST_F(KeyInputTest, WhatNoFieldTakesGoesToTheCommandLine) {
    QString typed;
    m_stage.typed = [&typed](const QString& text) { typed += text; };
    MirrorWidget* slider = widget(kFade, "slider");
    windows().setFocus(slider->handle());
    typeText(*slider, QStringLiteral("li"));
    EXPECT_EQ(typed, QStringLiteral("li"));
}

}  // namespace workbench::desktop
