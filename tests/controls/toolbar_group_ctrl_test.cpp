#include "tests/support/control_bench.h"

#include "workbench/base/text.h"
#include "workbench/drawing/path_access.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/list_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/windows/window_system.h"

#include <string>

namespace {

constexpr UINT kKeepFocus = 1566;
constexpr UINT kHasIcon = 1567;
constexpr UINT kListDropped = 0x7101;

struct WrappedCase {
    const char* name;
    int hostId;
    const char* icon;  // null: none
};

void PrintTo(const WrappedCase& row, std::ostream* out) {
    *out << row.name;
}

std::string menuWith(const std::string& control) {
    return R"({"menuGroups": [{"name": "MAIN"}], "panels": [{"menuGroup": "MAIN", "id": "P",
        "title": "P", "toolPanels": ["TP"]}], "toolPanels": [{"menuGroup": "MAIN", "id": "TP",
        "items": [{"type": "control", "control": ")" +
           control + R"("}]}], "workspaces": [{"name": "W", "panels": [{"menuGroup": "MAIN",
        "panel": "P"}]}], "currentWorkspace": "W"})";
}

class WrappedControlTest : public support::ControlBench,
                           public testing::WithParamInterface<WrappedCase> {
protected:
    void SetUp() override {
        useMenu(menuWith(GetParam().name));
        showControl(GetParam().name);
    }
};

TEST_P(WrappedControlTest, HoldsTheHostsControlAndItsIcon) {
    EXPECT_EQ(bench().windows().find(window())->id, 701);
    bool found = false;
    for (const HWND child : bench().windows().descendants(window()))
        found = found || bench().windows().find(child)->id == GetParam().hostId;
    EXPECT_TRUE(found);
    EXPECT_EQ(send(kHasIcon), GetParam().icon == nullptr ? 0 : 1);
    // The panel's own item may bear the same ID; the icon stands in the group.
    const auto* group = dynamic_cast<CQrUiToolPanel*>(CWnd::FromHandle(window()));
    CQrUiToolPanelItem* const icon = group->GetToolPanelItem(workbench::toWide(GetParam().name));
    ASSERT_EQ(icon != nullptr, GetParam().icon != nullptr);
    if (icon != nullptr) {
        EXPECT_EQ(icon->GetType(), kItemIcon);
        EXPECT_EQ(workbench::viewOf(bench().toolkit(), *icon).image, GetParam().icon);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, WrappedControlTest,
    testing::Values(WrappedCase{"LayerControl", 1111, nullptr},
                    WrappedCase{"LineTypeControl", 2222, "RCDATA_OPLTYPE_ICON"},
                    WrappedCase{"OPTColorControl", 3333, "RCDATA_OPCOLOR_ICON"},
                    WrappedCase{"LineWeightControl", 4444, "RCDATA_OPLWEIGHT_ICON"},
                    WrappedCase{"RefblknameControl", 5555, nullptr},
                    WrappedCase{"ViewControl", 6666, nullptr},
                    WrappedCase{"NamedViewControl", 6667, nullptr},
                    WrappedCase{"ViewportScaleControl", 7777, nullptr},
                    WrappedCase{"PlotStyleControl", 8888, "RCDATA_OPPSTYLE_ICON"},
                    WrappedCase{"UCSControl", 9999, nullptr},
                    WrappedCase{"DimStyleControl", 11111, nullptr},
                    WrappedCase{"TxtStyleControl", 11117, nullptr},
                    WrappedCase{"TblStyleControl", 11118, nullptr},
                    WrappedCase{"WorkspacesControl", 11119, nullptr},
                    WrappedCase{"UndoSkinnyButtonControl", 44445, nullptr},
                    WrappedCase{"RedoSkinnyButtonControl", 55556, nullptr},
                    WrappedCase{"MldStyleControl", 11120, nullptr},
                    WrappedCase{"FindTextControl", 11122, nullptr}));

class LayerListTest : public support::ControlBench {
protected:
    void SetUp() override {
        useMenu(menuWith("LayerControl"));
        showControl("LayerControl");
    }
    HWND list() { return part(window(), "combo"); }
    LRESULT command(UINT code, LPARAM control) {
        return send(WM_COMMAND, MAKELONG(1111, code), control);
    }
};

TEST_F(LayerListTest, OpenListKeepsTheFocusUntilItCloses) {
    EXPECT_EQ(send(kKeepFocus), 0);
    workbench::gestures::openList(bench().toolkit(), list());
    EXPECT_EQ(send(kKeepFocus), 1);
    EXPECT_EQ(send(kListDropped), 1);
    workbench::gestures::closeList(bench().toolkit(), list());
    EXPECT_EQ(send(kKeepFocus), 0);
    EXPECT_EQ(send(kListDropped), 0);
}

TEST_F(LayerListTest, HostIsAskedUntilItTakesTheCommand) {
    takeCalls();
    fail("HandleToolbarComboMessage", 0, 3);
    command(7, reinterpret_cast<LPARAM>(list()));
    EXPECT_EQ(takeCount("HandleToolbarComboMessage"), 4U);
}

TEST_F(LayerListTest, CommandWithoutAControlGoesToTheFramework) {
    takeCalls();
    command(7, 0);
    EXPECT_EQ(takeCount("HandleToolbarComboMessage"), 0U);
    EXPECT_EQ(send(kKeepFocus), 0);
}

TEST_F(LayerListTest, ChosenLayerBecomesCurrent) {
    workbench::drawing::setByPath(bench().editor().documents().current()->data(), "layers.Walls",
                                  workbench::Value::Table{});
    workbench::gestures::openList(bench().toolkit(), list());
    workbench::gestures::chooseFromList(bench().toolkit(), list(), 1);
    EXPECT_EQ(var(L"CLAYER"), workbench::Value("Walls"));
}

class EmptyRowTest : public support::ControlBench {};

TEST_F(EmptyRowTest, HostWithoutTheControlLeavesTheRowEmpty) {
    useMenu(menuWith("LineTypeControl"));
    env("ENABLEDASHBOARD", "1");
    fail("getVxToolbarControl");
    showControl("LineTypeControl");
    EXPECT_TRUE(bench().windows().descendants(window()).empty());
    EXPECT_EQ(send(kHasIcon), 0);
}

class UndoButtonTest : public support::ControlBench {};

TEST_F(UndoButtonTest, ClickUndoesTheLastStep) {
    useMenu(menuWith("UndoSkinnyButtonControl"));
    showControl("UndoSkinnyButtonControl");
    set(L"LTSCALE", 3.0);
    const HWND button = bench().windows().descendants(window()).front();
    workbench::gestures::clickAt(bench().toolkit(), button, {2, 2});
    settle();
    EXPECT_EQ(var(L"LTSCALE"), workbench::Value(1.0));
}

}  // namespace
