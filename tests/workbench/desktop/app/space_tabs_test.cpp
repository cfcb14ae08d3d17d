#include "workbench/desktop/app/space_tabs.h"

#include "tests/workbench/desktop/app/main_window_fixture.h"

namespace workbench::desktop {

class SpaceTabsTest : public MainWindowTest {};

TEST_F(SpaceTabsTest, TheTabsBelowTheDrawingGoToItsLayouts) {
    SpaceTabs& spaces = m_window.spaceTabs();
    ASSERT_GT(spaces.count(), 1);
    EXPECT_EQ(spaces.tabText(0), QStringLiteral("Model"));
    EXPECT_EQ(spaces.currentIndex(), 0);
    spaces.setCurrentIndex(1);
    EXPECT_EQ(editor().read(L"TILEMODE"), Value(0));
    EXPECT_EQ(spaces.currentIndex(), 1);
    enter("MODEL");
    EXPECT_EQ(spaces.currentIndex(), 0);
    EXPECT_EQ(editor().read(L"TILEMODE"), Value(1));
}

}  // namespace workbench::desktop
