#include "tests/layer/filter_combo_fixture.h"
#include "workbench/gestures/menu_gestures.h"
#include "workbench/toolkit/popup_menus.h"

#include <hostapi/zorq/layers.h>

#include <set>

namespace {

using workbench::MenuLine;
using Gray = std::set<std::wstring>;

/// Test fixture: the menu of a filter, as it opens.
class FilterMenuTest : public FilterComboTest {
protected:
    /// The menu of a node, closed again.
    std::vector<MenuLine> menuOf(const std::wstring& text) {
        if (!isOpen())
            clickCombo();
        return menuAt(labelOf(text));
    }
    std::vector<MenuLine> menuAt(CPoint place) {
        std::vector<MenuLine> menu;
        bench().toolkit().menus().answerNext([&menu](const std::vector<MenuLine>& lines) {
            menu = lines;
            return std::optional<UINT>();
        });
        bench().toolkit().mouse().contextMenu(tree(), place);
        return menu;
    }
    /// The labels of the gray lines of a menu and of its popups.
    static Gray grayOf(const std::vector<MenuLine>& menu) {
        Gray gray;
        for (const workbench::gestures::PlacedLine& placed :
             workbench::gestures::linesInOrder(menu)) {
            if (placed.line->disabled)
                gray.insert(placed.path);
        }
        return gray;
    }
    void enterLayout() {
        set(L"TILEMODE", 0);
        takeSent();
    }
};

const Gray kOnlyInLayouts{L"Isolate Layers/Active Viewport Only", L"Viewport"};

Gray with(Gray gray, const Gray& more) {
    gray.insert(more.begin(), more.end());
    return gray;
}

TEST_F(FilterMenuTest, HasItsLinesInThisOrder) {
    Texts lines;
    for (const auto& placed : workbench::gestures::linesInOrder(menuOf(L"House")))
        lines.push_back(placed.path);
    EXPECT_EQ(lines, (Texts{L"Visibility",
                            L"Visibility/On",
                            L"Visibility/Off",
                            L"Visibility/Freeze",
                            L"Visibility/Thaw",
                            L"Locking",
                            L"Locking/Lock",
                            L"Locking/Unlock",
                            L"Viewport",
                            L"Viewport/Freeze in Active Viewport",
                            L"Viewport/Thaw in Active Viewport",
                            L"Isolate Layers",
                            L"Isolate Layers/All Viewports",
                            L"Isolate Layers/Active Viewport Only",
                            L"-",
                            L"New Group Filter",
                            L"Convert to Group Filter",
                            L"Rename",
                            L"Delete",
                            L"-",
                            L"Select Layers",
                            L"Select Layers/Add to Group",
                            L"Select Layers/Replace Group"}));
}

TEST_F(FilterMenuTest, LinesHaveTheirCommands) {
    std::vector<UINT> commands;
    const std::vector<MenuLine> menu = menuOf(L"House");
    for (const auto& placed : workbench::gestures::linesInOrder(menu)) {
        if (placed.line->command != 0)
            commands.push_back(placed.line->command);
    }
    EXPECT_EQ(commands,
              (std::vector<UINT>{11001, 11002, 11003, 11004, 11005, 11006, 11007, 11008, 11010,
                                 11009, 11011, 11012, 11013, 11014, 11015, 11016}));
}

TEST_F(FilterMenuTest, IsBuiltOnceAndKept) {
    menuOf(L"House");
    takeJournal();
    menuOf(L"Top");
    EXPECT_EQ(takeCallLines({"CMenu::CreatePopupMenu", "CMenu::AppendMenu"}), Calls{});
}

TEST_F(FilterMenuTest, OpensAtThePointOfTheScreen) {
    clickCombo();
    const CPoint place = labelOf(L"House");
    takeJournal();
    menuAt(place);
    const CPoint screen = CWnd::FromHandle(tree())->ClientToScreen(place);
    EXPECT_EQ(takeCallLines({"CMenu::TrackPopupMenu"}),
              Calls{"CMenu::TrackPopupMenu(0, " + std::to_string(screen.x) + ", " +
                    std::to_string(screen.y) + ")"});
}

TEST_F(FilterMenuTest, PropertyFilterInModelSpace) {
    EXPECT_EQ(grayOf(menuOf(L"House")),
              with(kOnlyInLayouts, {L"New Group Filter", L"Select Layers"}));
}

TEST_F(FilterMenuTest, GroupInModelSpace) {
    EXPECT_EQ(grayOf(menuOf(L"Top")), with(kOnlyInLayouts, {L"Convert to Group Filter"}));
}

TEST_F(FilterMenuTest, GroupInALayout) {
    enterLayout();
    EXPECT_EQ(grayOf(menuOf(L"Top")), Gray{L"Convert to Group Filter"});
}

TEST_F(FilterMenuTest, RootMayGetAGroupButNotBeChanged) {
    EXPECT_EQ(
        grayOf(menuOf(rootName())),
        with(kOnlyInLayouts, {L"Convert to Group Filter", L"Rename", L"Delete", L"Select Layers"}));
}

TEST_F(FilterMenuTest, GeneratedFilterMayOnlyBeUsed) {
    EXPECT_EQ(grayOf(menuOf(L"All Used Layers")),
              with(kOnlyInLayouts, {L"New Group Filter", L"Convert to Group Filter", L"Rename",
                                    L"Delete", L"Select Layers"}));
}

TEST_F(FilterMenuTest, InvertedFilterTakesNoSelection) {
    vxedSetInvertLayerFilterFlag(true);
    EXPECT_EQ(grayOf(menuOf(L"Top")),
              with(kOnlyInLayouts, {L"Convert to Group Filter", L"Select Layers"}));
    vxedSetInvertLayerFilterFlag(false);
}

TEST_F(FilterMenuTest, WithoutAFilterAlmostAllIsGray) {
    clickCombo();
    const CRect client = CWnd::FromHandle(tree())->GetClientRect();
    EXPECT_EQ(
        grayOf(menuAt({30, client.bottom - 2})),
        with(kOnlyInLayouts, {L"Visibility", L"Locking", L"Isolate Layers", L"New Group Filter",
                              L"Convert to Group Filter", L"Rename", L"Delete", L"Select Layers"}));
}

TEST_F(FilterMenuTest, MenuThatCannotBeMadeDoesNotOpen) {
    clickCombo();
    fail("CMenu::CreatePopupMenu", {}, 1);
    takeJournal();
    bench().toolkit().mouse().contextMenu(tree(), labelOf(L"House"));
    EXPECT_EQ(takeCallLines({"CMenu::TrackPopupMenu"}), Calls{});
}

}  // namespace
