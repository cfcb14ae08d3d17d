#include "workbench/host/workbench.h"

#include "workbench/base/input_error.h"
#include "workbench/windows/window_system.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace workbench {

TEST(WorkbenchTest, TheLivingOneIsTheCurrentOne) {
    EXPECT_EQ(Workbench::living(), nullptr);
    EXPECT_THROW(Workbench::current(), std::logic_error);
    {
        Workbench workbench({});
        EXPECT_EQ(&Workbench::current(), &workbench);
        EXPECT_EQ(Workbench::living(), &workbench);
    }
    EXPECT_EQ(Workbench::living(), nullptr);
}

TEST(WorkbenchTest, ASecondOneIsRefused) {
    Workbench workbench({});
    EXPECT_THROW(Workbench({}), std::logic_error);
    EXPECT_EQ(Workbench::living(), &workbench);
}

TEST(WorkbenchTest, OneThatCannotStartLeavesNothingBehind) {
    WorkbenchOptions options;
    options.panelFile = "/no such folder/panels.json";
    EXPECT_THROW(Workbench{options}, InputError);
    EXPECT_EQ(Workbench::living(), nullptr);
    const Workbench next({});
    EXPECT_EQ(Workbench::living(), &next);
}

TEST(WorkbenchTest, WindowObjectsAndMenusMayOutliveIt) {
    CWnd window;
    CMenu menu;
    CFont font;
    {
        Workbench workbench({});
        WindowCreation creation;
        creation.className = "Test";
        ASSERT_TRUE(workbench.windows().create(window, std::move(creation)));
        ASSERT_TRUE(menu.CreatePopupMenu());
        ASSERT_TRUE(font.CreateFontIndirect({}));
    }
    EXPECT_EQ(window.m_hWnd, nullptr);
}

}  // namespace workbench
