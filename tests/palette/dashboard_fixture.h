#pragma once

#include "palette/dashboard.h"
#include "palette/xml_node.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/zorq/profiles.h>

#include <string>
#include <vector>

/// Test fixture: the dashboard's bar, beside what is around it in the toolkit.
class DashboardTest : public PaletteTest {
protected:
    workbench::MainFrame& frame() { return bench().toolkit().frame(); }
    NodePtr makeNode() {
        return NodePtr(vxProfileManagerPtr()->profileStorage(L"Default", true)->createNode(L"Bar"));
    }
    bool hasVisibleStyle() { return (dashboard().GetStyle() & WS_VISIBLE) != 0; }
    std::vector<std::string> menuBehind(const std::vector<UINT>& begun) {
        CMenu menu;
        menu.CreatePopupMenu();
        for (const UINT flags : begun)
            menu.AppendMenu(flags, 1, L"Begun");
        EXPECT_EQ(dashboard().AddContextMenuItems(menu), 1);
        return labels(bench().windows().menus().read(menu.m_hMenu));
    }
};
