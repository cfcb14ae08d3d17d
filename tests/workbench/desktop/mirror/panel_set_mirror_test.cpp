#include "workbench/desktop/mirror/panel_set_mirror.h"

#include "tests/workbench/desktop/mirror/mirror_fixture.h"

#include <QScrollBar>

namespace workbench::desktop {

class PanelSetMirrorTest : public MirrorTest {};

TEST_F(PanelSetMirrorTest, WhereThePanelsGoOnABarTellsAndScrollsThem) {
    auto* const bar = m_top.findChild<QScrollBar*>();
    ASSERT_NE(bar, nullptr);
    EXPECT_FALSE(bar->isVisible()) << "all panels are on show";
    m_home.resize(1100, 400);
    rest();
    EXPECT_TRUE(bar->isVisible());
    const int top = windows().screenRect(window(kFade, "slider")).top;
    bar->setValue(50);
    rest();
    EXPECT_EQ(windows().screenRect(window(kFade, "slider")).top, top - 50);
    turnWheel(*widget(kFade, "edit"), 1);
    rest();
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(PanelSetMirrorTest, TheWheelScrollsOverAFieldThatHasTheKeyboardToo) {
    m_home.resize(1100, 400);
    MirrorWidget* edit = widget(kFade, "edit");
    click(*edit);
    rest();
    const int top = windows().screenRect(edit->handle()).top;
    turnWheel(*edit, -1);
    EXPECT_LT(windows().screenRect(edit->handle()).top, top);
}

TEST_F(PanelSetMirrorTest, ItsThumbIsDraggedByTheMouse) {
    m_home.resize(1100, 400);
    rest();
    auto* const bar = m_top.findChild<QScrollBar*>();
    press(*bar, {1, bar->height() - 1});
    moveHeld(*bar, {1, bar->height() - 1});
    EXPECT_EQ(bar->value(), bar->maximum());
    moveHeld(*bar, {1, 0});
    EXPECT_EQ(bar->value(), 0);
    release(*bar, {1, 0});
}

}  // namespace workbench::desktop
