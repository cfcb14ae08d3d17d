#include "workbench/menu/workspaces.h"

#include <gtest/gtest.h>

namespace workbench {

namespace {

MenuData menuWithTwoWorkspaces() {
    MenuData menu;
    menu.workspaces = {{"3D", {{"Light", "ZORQ"}, {"Sun", "ZORQ"}}}, {"2D", {{"Draw", "ZORQ"}}}};
    menu.currentWorkspace = "3D";
    return menu;
}

}  // namespace

TEST(WorkspacesTest, TheMenusCurrentWorkspaceIsTheFirstAndAsksForNothing) {
    const Workspaces workspaces(menuWithTwoWorkspaces());
    EXPECT_EQ(workspaces.current(), "3D");
    EXPECT_FALSE(workspaces.panelRefreshFromWorkspace());
    ASSERT_NE(workspaces.visiblePanels(), nullptr);
    EXPECT_EQ(*workspaces.visiblePanels(),
              (std::vector<PanelKey>{{"Light", "ZORQ"}, {"Sun", "ZORQ"}}));
}

TEST(WorkspacesTest, ASwitchBringsTheOtherPanelsAndAsksThemToFollow) {
    Workspaces workspaces(menuWithTwoWorkspaces());
    EXPECT_TRUE(workspaces.switchTo("2D"));
    EXPECT_EQ(workspaces.current(), "2D");
    EXPECT_TRUE(workspaces.panelRefreshFromWorkspace());
    EXPECT_EQ(*workspaces.visiblePanels(), (std::vector<PanelKey>{{"Draw", "ZORQ"}}));
}

TEST(WorkspacesTest, ASwitchToTheCurrentWorkspaceAsksToo) {
    Workspaces workspaces(menuWithTwoWorkspaces());
    EXPECT_TRUE(workspaces.switchTo("3D"));
    EXPECT_TRUE(workspaces.panelRefreshFromWorkspace());
}

TEST(WorkspacesTest, AnUnknownNameChangesNothing) {
    Workspaces workspaces(menuWithTwoWorkspaces());
    EXPECT_FALSE(workspaces.switchTo("2d"));
    EXPECT_EQ(workspaces.current(), "3D");
    EXPECT_FALSE(workspaces.panelRefreshFromWorkspace());
}

TEST(WorkspacesTest, ARequestThatWasFollowedCanBeTakenBack) {
    Workspaces workspaces(menuWithTwoWorkspaces());
    workspaces.switchTo("2D");
    workspaces.setPanelRefreshFromWorkspace(false);
    EXPECT_FALSE(workspaces.panelRefreshFromWorkspace());
}

TEST(WorkspacesTest, WithoutWorkspacesThereIsNoList) {
    Workspaces workspaces(MenuData{});
    EXPECT_EQ(workspaces.current(), "");
    EXPECT_EQ(workspaces.visiblePanels(), nullptr);
    EXPECT_FALSE(workspaces.switchTo(""));
}

}  // namespace workbench
