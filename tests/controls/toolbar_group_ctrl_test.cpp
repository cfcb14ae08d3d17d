#include "controls/toolbar_group_ctrl.h"

#include "tests/palette/palette_fixture.h"
#include "tests/support/answer_in_place.h"
#include "tests/support/call_lines.h"
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
#include <vector>

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

class WrappedControlTest : public support::ControlBench,
                           public testing::WithParamInterface<WrappedCase> {
protected:
    void SetUp() override {
        useMenuOf(GetParam().name);
        showControl(GetParam().name);
    }
    CQrUiToolPanel& group() { return *dynamic_cast<CQrUiToolPanel*>(CWnd::FromHandle(window())); }
};

TEST_P(WrappedControlTest, HoldsTheHostsControlAndItsIcon) {
    EXPECT_EQ(bench().windows().find(window())->id, 701);
    bool found = false;
    for (const HWND child : bench().windows().descendants(window()))
        found = found || bench().windows().find(child)->id == GetParam().hostId;
    EXPECT_TRUE(found);
    EXPECT_EQ(send(kHasIcon), GetParam().icon == nullptr ? 0 : 1);
    // The panel's own item may bear the same ID; the icon stands in the group.
    CQrUiToolPanelItem* const icon = group().GetToolPanelItem(workbench::toWide(GetParam().name));
    ASSERT_EQ(icon != nullptr, GetParam().icon != nullptr);
    if (icon != nullptr) {
        EXPECT_EQ(icon->GetType(), kItemIcon);
        EXPECT_EQ(workbench::viewOf(bench().toolkit(), *icon).image, GetParam().icon);
    }
}

TEST_P(WrappedControlTest, ControlIsTheLastItemBehindTheIcon) {
    const int last = GetParam().icon == nullptr ? 0 : 1;
    ASSERT_EQ(group().GetToolPanelItemCount(), last + 1);
    CQrUiToolPanelItem* const item = group().GetToolPanelItem(last);
    EXPECT_EQ(item->GetType(), kItemControl);
    EXPECT_EQ(bench().windows().find(item->GetControl())->id, GetParam().hostId);
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
        useMenuOf("LayerControl");
        showControl("LayerControl");
    }
    HWND list() { return part(window(), "combo"); }
    LRESULT command(UINT code, LPARAM control) {
        return send(WM_COMMAND, MAKELONG(1111, code), control);
    }
    /// How the host was asked to handle commands since the last look.
    std::vector<std::string> asked() {
        return support::callLines(takeJournal("call"), {"HandleToolbarComboMessage"});
    }
};

using Calls = std::vector<std::string>;

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
    EXPECT_EQ(command(7, reinterpret_cast<LPARAM>(list())), 0);
    const std::string call = "HandleToolbarComboMessage(1111, 7, 459863)";
    EXPECT_EQ(asked(), (Calls{call, call, call, call}));
}

TEST_F(LayerListTest, HostIsAskedOnceForEachNoticeWithItsParameters) {
    takeCalls();
    for (const UINT code : {7U, 8U, 9U})
        EXPECT_EQ(command(code, reinterpret_cast<LPARAM>(list())), 0);
    EXPECT_EQ(asked(), (Calls{"HandleToolbarComboMessage(1111, 7, 459863)",
                              "HandleToolbarComboMessage(1111, 8, 525399)",
                              "HandleToolbarComboMessage(1111, 9, 590935)"}));
}

TEST_F(LayerListTest, OpeningAndClosingEndHereAndOtherNoticesGoOnToTheToolkit) {
    const auto control = reinterpret_cast<LPARAM>(list());
    const support::AnswerInPlace toolkit(bench().windows(), window(), WM_COMMAND, 5);
    EXPECT_EQ(command(7, control), 0);
    EXPECT_EQ(command(8, control), 0);
    EXPECT_EQ(command(9, control), 5);
}

TEST_F(LayerListTest, ListCountsAsOpenBeforeTheHostIsAsked) {
    std::vector<LRESULT> answers;
    const auto listening =
        bench().journal().addListener([&](const workbench::JournalRecord& record) {
            if (record.field("name") == workbench::Value("HandleToolbarComboMessage"))
                answers.push_back(bench().windows().send(window(), kKeepFocus, 0, 0));
        });
    command(7, reinterpret_cast<LPARAM>(list()));
    command(9, reinterpret_cast<LPARAM>(list()));
    command(8, reinterpret_cast<LPARAM>(list()));
    EXPECT_EQ(answers, (std::vector<LRESULT>{1, 1, 0}));
}

class NoControlTest : public LayerListTest, public testing::WithParamInterface<LPARAM> {};

TEST_P(NoControlTest, CommandWithoutAControlInTheLowWordGoesToTheFramework) {
    takeCalls();
    command(7, GetParam());
    EXPECT_EQ(asked(), Calls{});
    EXPECT_EQ(send(kKeepFocus), 0);
}

INSTANTIATE_TEST_SUITE_P(LParams, NoControlTest, testing::Values(0, 0x10000, 0x7fff0000));

TEST_F(LayerListTest, CommandWithTheLeastControlIsAskedFor) {
    takeCalls();
    command(7, 1);
    EXPECT_EQ(asked(), Calls{"HandleToolbarComboMessage(1111, 7, 459863)"});
    EXPECT_EQ(send(kKeepFocus), 1);
}

TEST_F(LayerListTest, OtherMessagesAreNoCommands) {
    constexpr UINT kBeforeCommand = WM_COMMAND - 1;
    takeCalls();
    send(kBeforeCommand, MAKELONG(1111, 7), reinterpret_cast<LPARAM>(list()));
    EXPECT_EQ(asked(), Calls{});
    EXPECT_EQ(send(kKeepFocus), 0);
}

TEST_F(LayerListTest, ChosenLayerBecomesCurrent) {
    workbench::drawing::setByPath(bench().editor().documents().current()->data(), "layers.Walls",
                                  workbench::Value::Table{});
    workbench::gestures::openList(bench().toolkit(), list());
    workbench::gestures::chooseFromList(bench().toolkit(), list(), 1);
    EXPECT_EQ(var(L"CLAYER"), workbench::Value("Walls"));
}

class ToolbarCreationTest : public support::ControlBench {
protected:
    void SetUp() override { useMenuOf("LineTypeControl"); }
};

TEST_F(ToolbarCreationTest, HostsControlIsMadeWiderAndHigherThanTheRow) {
    std::vector<std::string> made;
    const auto listening =
        bench().journal().addListener([&made](const workbench::JournalRecord& record) {
            for (const std::string& call : support::callLines({record}, {"getVxToolbarControl"}))
                made.push_back(call);
        });
    showControl("LineTypeControl");
    const CRect row = firstRectOf(window());
    EXPECT_EQ(made, Calls{"getVxToolbarControl(object, 0, 0, " + std::to_string(row.Width() + 20) +
                          ", " + std::to_string(row.Height() + 300) + ", 2222)"});
}

TEST_F(ToolbarCreationTest, IconIsLoadedSmall) {
    std::vector<std::string> loaded;
    const auto listening =
        bench().journal().addListener([&loaded](const workbench::JournalRecord& record) {
            for (const std::string& call :
                 support::callLines({record}, {"QrUiLoadImageFromResource"})) {
                if (call.find("RCDATA_OPLTYPE_ICON") != std::string::npos)
                    loaded.push_back(call);
            }
        });
    showControl("LineTypeControl");
    EXPECT_EQ(
        loaded,
        Calls{
            "QrUiLoadImageFromResource(\"VxDashboardRes.dll\", \"RCDATA_OPLTYPE_ICON\", 16, -1)"});
}

TEST_F(ToolbarCreationTest, MissingPictureLeavesTheIconWithoutOne) {
    fail("QrUiLoadImageFromResource");
    showControl("LineTypeControl");
    EXPECT_EQ(send(kHasIcon), 1);
    EXPECT_EQ(workbench::viewOf(bench().toolkit(), *item(L"LineTypeControl", 2)).image, "");
}

/// A group without a window.
class UnbornGroupTest : public PaletteTest {
protected:
    void SetUp() override { load(); }
    static LRESULT create(CVxDaToolbarGroupCtrl& group) {
        const CREATESTRUCT creation{0, 0, 100, 20, WS_CHILD, nullptr};
        return group.WindowProc(WM_CREATE, 0, reinterpret_cast<LPARAM>(&creation));
    }
    std::vector<std::string> calls() {
        return support::callLines(bench().journal().records(),
                                  {"CQrUiToolPanel::OnCreate", "getVxToolbarControl"});
    }
};

TEST_F(UnbornGroupTest, NameThatTheTableLacksMakesAnEmptyGroup) {
    CVxDaToolbarGroupCtrl group(L"NoSuchControl");
    forget();
    EXPECT_EQ(create(group), 1);
    EXPECT_EQ(calls(), Calls{"CQrUiToolPanel::OnCreate(object)"});
    EXPECT_EQ(group.GetToolPanelItemCount(), 0);
}

TEST_F(UnbornGroupTest, EmptyNameFailsBehindTheToolkitsStep) {
    CVxDaToolbarGroupCtrl group(L"");
    forget();
    EXPECT_EQ(create(group), -1);
    EXPECT_EQ(calls(), Calls{"CQrUiToolPanel::OnCreate(object)"});
}

TEST_F(UnbornGroupTest, FailureOfTheToolkitsStepIsPassedOn) {
    CVxDaToolbarGroupCtrl group(L"LayerControl");
    fail("CQrUiToolPanel::OnCreate");
    forget();
    EXPECT_EQ(create(group), -1);
    EXPECT_EQ(calls(), Calls{"CQrUiToolPanel::OnCreate(object)"});
}

class EmptyRowTest : public support::ControlBench {};

TEST_F(EmptyRowTest, HostWithoutTheControlLeavesTheRowEmpty) {
    useMenuOf("LineTypeControl");
    env("ENABLEDASHBOARD", "1");
    fail("getVxToolbarControl");
    showControl("LineTypeControl");
    EXPECT_TRUE(bench().windows().descendants(window()).empty());
    EXPECT_EQ(send(kHasIcon), 0);
}

class UndoButtonTest : public support::ControlBench {};

TEST_F(UndoButtonTest, ClickUndoesTheLastStep) {
    useMenuOf("UndoSkinnyButtonControl");
    showControl("UndoSkinnyButtonControl");
    set(L"LTSCALE", 3.0);
    const HWND button = bench().windows().descendants(window()).front();
    workbench::gestures::clickAt(bench().toolkit(), button, {2, 2});
    settle();
    EXPECT_EQ(var(L"LTSCALE"), workbench::Value(1.0));
}

}  // namespace
