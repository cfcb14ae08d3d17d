#include "workbench/desktop/app/layout_keeper.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/toolkit/panel_widget.h"

namespace workbench::desktop {
namespace {

class LayoutKeeperTest : public ToolkitTest {
protected:
    LayoutKeeperTest() { m_keeper.start(); }

    int m_saved = 0;
    LayoutKeeper m_keeper{toolkit(), [this] { ++m_saved; }};
};

TEST_F(LayoutKeeperTest, WhatDoesNotChangeIsNotSaved) {
    m_keeper.look();
    m_keeper.look();
    EXPECT_EQ(m_saved, 0);
}

TEST_F(LayoutKeeperTest, AChangeIsSavedOnceItIsAtRest) {
    frame().floatAt(*m_set, {10, 20, 310, 420});
    m_keeper.look();
    EXPECT_EQ(m_saved, 0) << "it may go on changing";
    m_keeper.look();
    EXPECT_EQ(m_saved, 1);
    m_keeper.look();
    EXPECT_EQ(m_saved, 1);
    frame().dock(*m_set, Edge::Left);
    m_keeper.look();
    m_keeper.look();
    EXPECT_EQ(m_saved, 2);
}

TEST_F(LayoutKeeperTest, ARolledUpPanelIsAChange) {
    Window& panel = *windows().find(m_panel.m_hWnd);
    static_cast<PanelWidget&>(*panel.widget).collapse(panel, true);
    m_keeper.look();
    m_keeper.look();
    EXPECT_EQ(m_saved, 1);
}

TEST_F(LayoutKeeperTest, AnUnloadedDashboardIsNoChange) {
    m_set.reset();
    m_keeper.look();
    m_keeper.look();
    EXPECT_EQ(m_saved, 0);
}

}  // namespace
}  // namespace workbench::desktop
