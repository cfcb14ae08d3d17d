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

TEST_F(KeyInputTest, WhatNoFieldTakesGoesToTheCommandLine) {
    QString typed;
    m_stage.typed = [&typed](const QString& text) { typed += text; };
    MirrorWidget* slider = widget(kFade, "slider");
    windows().setFocus(slider->handle());
    typeText(*slider, QStringLiteral("li"));
    EXPECT_EQ(typed, QStringLiteral("li"));
}

}  // namespace workbench::desktop
