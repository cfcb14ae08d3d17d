#include "tests/layer/filter_combo_fixture.h"

#include <hostapi/vxdashboard.h>

namespace {

// The one entry

TEST_F(FilterComboTest, ShowsTheFilterInForceAsItsOneSelectedEntry) {
    EXPECT_EQ(shown(), rootName());
    setDb("filters.current", "House");
    tellCommandEnded(L"LAYER");
    EXPECT_EQ(shown(), L"House");
    EXPECT_EQ(shown(second()), L"House");
}

TEST_F(FilterComboTest, EntryHasThePictureOfTheFilter) {
    EXPECT_NE(listOf(window()).GetItem(0)->image, nullptr);
}

TEST_F(FilterComboTest, FollowsAnotherDocument) {
    setDb("filters.current", "House");
    newDocument(L"B");
    EXPECT_EQ(shown(), rootName());
    activateDocument(L"A");
    EXPECT_EQ(shown(), L"House");
}

TEST_F(FilterComboTest, KeepsTheDashboardsFontAndTakesANewOne) {
    EXPECT_TRUE(hasThemeFont(window()));
    clickCombo();
    send(1565);
    EXPECT_TRUE(hasThemeFont(window()));
    EXPECT_TRUE(hasThemeFont(tree()));
    EXPECT_TRUE(hasThemeFont(check()));
}

TEST_F(FilterComboTest, OnlyNamedCommandsAndTheVariableRefreshIt) {
    for (const wchar_t* name : {L"layer", L"-LAYER", L"U", L"Undo", L"REDO"}) {
        takeJournal();
        tellCommandEnded(name);
        EXPECT_EQ(takeCount("CQrUiComboCtrl::ResetContent"), 2U) << "both are shown anew";
    }
    takeJournal();
    send(1727, 1, reinterpret_cast<LPARAM>(L"TILEMODE"));
    EXPECT_EQ(takeCount("CQrUiComboCtrl::ResetContent"), 2U);
    for (const wchar_t* name : {L"LAYERSTATE", L"+LAYER", L"LINE", L""}) {
        tellCommandEnded(name);
        EXPECT_EQ(takeCalls(), Calls{});
    }
    for (const wchar_t* name : {L"Tilemode", L"CLAYER"}) {
        send(1727, 1, reinterpret_cast<LPARAM>(name));
        EXPECT_EQ(takeCalls(), Calls{});
    }
}

// The dropdown

TEST_F(FilterComboTest, ClickOpensTheDropdownBelowTheComboAndASecondOneClosesIt) {
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(send(1566), 0);
    EXPECT_EQ(send(0x7101), 0);
    clickCombo();
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(send(1566), 1);
    EXPECT_EQ(send(0x7101), 1);
    const CRect combo = CWnd::FromHandle(window())->GetWindowRect();
    const CRect dropdown = CWnd::FromHandle(tree())->GetParent()->GetWindowRect();
    EXPECT_EQ(dropdown.left, combo.left);
    EXPECT_EQ(dropdown.top, combo.bottom);
    EXPECT_EQ(dropdown.Width(), combo.Width());
    clickCombo();
    EXPECT_FALSE(isOpen());
}

TEST_F(FilterComboTest, DoubleClickOpensAndCloses) {
    send(WM_LBUTTONDBLCLK);
    EXPECT_TRUE(isOpen());
    send(WM_LBUTTONDBLCLK);
    EXPECT_FALSE(isOpen());
}

TEST_F(FilterComboTest, OpeningReadsTheFiltersAnew) {
    setDb("filters.New", workbench::Value::Table{{"kind", "group"}});
    clickCombo();
    EXPECT_TRUE(isInTree(L"New"));
}

TEST_F(FilterComboTest, EarlierDropdownStaysHidden) {
    clickCombo();
    const HWND first = CWnd::FromHandle(tree())->GetParent()->m_hWnd;
    clickCombo();
    clickCombo();
    EXPECT_TRUE(IsWindow(first));
    EXPECT_NE(CWnd::FromHandle(tree())->GetParent()->m_hWnd, first);
    EXPECT_TRUE(unload());
    EXPECT_FALSE(IsWindow(first));
}

TEST_F(FilterComboTest, DropdownThatCannotBeMadeLeavesNothingOpen) {
    for (const char* call : {"CWnd::CreateEx", "CTreeCtrl::Create", "CButton::Create"}) {
        fail(call, {}, 1);
        clickCombo();
        EXPECT_FALSE(isOpen()) << call;
        EXPECT_EQ(send(0x7101), 0);
    }
    clickCombo();
    EXPECT_TRUE(isOpen());
}

TEST_F(FilterComboTest, DropdownWithoutFiltersIsNotShown) {
    fail("VxLyLayerFilterManager::getFilters", {}, 1);
    clickCombo();
    EXPECT_FALSE(isOpen());
}

TEST_F(FilterComboTest, ManagerGoesWithTheLastCombo) {
    clickCombo();
    notify(kDashboardReleaseControls);
    takeJournal();
    type(L"-LAYER\n\n");
    EXPECT_EQ(takeCallLines({"vxlyGetLayerFilterManager"}), Calls{});
    takeSent();
}

TEST_F(FilterComboTest, WindowThatCannotBeMadeLeavesNoControl) {
    fail("CQrUiComboCtrl::Create");
    notify(kDashboardReleaseControls);
    notify(kDashboardUnload);
    notify(kDashboardReload);
    EXPECT_EQ(control(kFilterControl), nullptr);
    bench().faults().unfail("CQrUiComboCtrl::Create");
}

}  // namespace
