#include "module/manager_reactors.h"

#include "layer/filter_combo.h"
#include "module/control_manager.h"
#include "module/module.h"
#include "tests/palette/palette_fixture.h"
#include "visualstyle/material_mode.h"
#include "workbench/editor/editor.h"
#include "workbench/profiles/profile_store.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr const char* kControl = "LayerLockTransparencySliderControl";

/// An action that does nothing.
class IdleCallback final : public VxDaCmdUtil::InputContextReactor::Callback {
public:
    void run() override {}
};

class ManagerReactorsTest : public PaletteTest {
protected:
    /// Shows the dashboard, with the material mode read: the first event of all would read it.
    void show() {
        PaletteTest::show();
        kMaterialModeEvents.refresh();
        road();
    }
    workbench::EditorReactors& editor() { return bench().editor().reactors(); }

    /// What the fade slider was told and what the control manager did, in order: the numbers of
    /// messages, "read NAME" and "filters".
    std::vector<std::string> road() {
        std::vector<std::string> steps;
        for (const workbench::JournalRecord& record : bench().journal().take()) {
            if (record.kind == "message" && record.field("control") == workbench::Value(kControl)) {
                steps.push_back(std::to_string(record.field("number").asInteger()));
            } else if (isCall(record, "vxedSetUseCurrentFilterFlag")) {
                steps.push_back("filters");
            } else if (isCall(record, "vxedGetVar")) {
                const std::string& name = record.field("args").asList().front().asString();
                if (name != "VPLAYEROVERRIDES")  // read with the filters
                    steps.push_back("read " + name);
            }
        }
        return steps;
    }

private:
    static bool isCall(const workbench::JournalRecord& record, const char* name) {
        return record.kind == "call" && record.field("name") == workbench::Value(name);
    }
};

using Road = std::vector<std::string>;

TEST_F(ManagerReactorsTest, VariableReachesTheControlsThenTheControlManagerThenCleanScreen) {
    show();
    editor().sysVarChanged(L"VSMATERIALMODE", true);
    EXPECT_EQ(road(), (Road{"1727", "read VSMATERIALMODE"}));
    editor().sysVarChanged(L"CLEANSCREENSTATE", true);
    EXPECT_EQ(road(), (Road{"1727", "read CleanScreenState"}));
}

TEST_F(ManagerReactorsTest, TileModeRefreshesTheFilterListsAfterTheBroadcast) {
    show();
    const CVxDaFilterComboCtrl list;
    editor().sysVarChanged(L"TILEMODE", true);
    EXPECT_EQ(road(), (Road{"1727", "filters"}));
}

TEST_F(ManagerReactorsTest, EndOfALayerCommandIsToldFirstAndThenRefreshesTheFilterLists) {
    show();
    const CVxDaFilterComboCtrl list;
    editor().commandEnded(L"LAYER");
    EXPECT_EQ(road(), (Road{"1730", "filters"}));
}

struct SilentCase {
    const char* what;
    void (workbench::EditorReactors::*raise)(const wchar_t*);
    const char* number;
};
class SilentEventTest : public ManagerReactorsTest,
                        public testing::WithParamInterface<SilentCase> {};

TEST_P(SilentEventTest, ReachesTheControlsAlone) {
    show();
    const CVxDaFilterComboCtrl list;
    (editor().*GetParam().raise)(L"LAYER");
    EXPECT_EQ(road(), Road{GetParam().number}) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Events, SilentEventTest,
    testing::Values(SilentCase{"a start", &workbench::EditorReactors::commandWillStart, "1729"},
                    SilentCase{"a cancel", &workbench::EditorReactors::commandCancelled, "1731"},
                    SilentCase{"a failure", &workbench::EditorReactors::commandFailed, "1729"},
                    SilentCase{"a coming change", &workbench::EditorReactors::sysVarWillChange,
                               "1728"}));

TEST_F(ManagerReactorsTest, DocumentThatBecomesCurrentIsToldBeforeTheFilterListsAreRefreshed) {
    show();
    const CVxDaFilterComboCtrl list;
    bench().editor().documents().create(L"B");
    const Road steps = road();
    const auto told = std::find(steps.begin(), steps.end(), "1726");
    ASSERT_NE(told, steps.end());
    EXPECT_NE(std::find(told, steps.end(), "filters"), steps.end());
    EXPECT_EQ(std::count(steps.begin(), steps.end(), "filters"), 1);
    EXPECT_NE(std::find(steps.begin(), told, "1724"), told) << "activation is told before";
}

TEST_F(ManagerReactorsTest, DocumentReactorWithoutAManagerPassesNothingOn) {
    show();
    const CVxDaFilterComboCtrl list;
    VxDaDocManagerReactor alone(nullptr);
    VxApDocument* document = vxDocManagerPtr()->curDocument();
    forget();
    alone.documentCreated(document);
    alone.documentToBeDestroyed(document);
    alone.documentDestroyed(L"A");
    alone.documentBecameCurrent(document);
    alone.documentToBeActivated(document);
    EXPECT_TRUE(road().empty());
}

TEST_F(ManagerReactorsTest, EventsBeforeTheFirstShowFindNoPanelSet) {
    load();
    VxDaProfileManagerReactor profiles(dashboardManager());
    forget();
    profiles.currentProfileChanged(L"Other");
    profiles.currentProfileWillBeSaved(L"Other");
    editor().viewChanged();
    EXPECT_TRUE(road().empty());
    EXPECT_EQ(callCount("VxApProfileManager::profileStorage"), 0);
}

// Profiles

class ProfileEventTest : public ManagerReactorsTest {
protected:
    /// Ties the panel of layers to the n-th line of its menu of tool palette groups.
    void chooseGroup(UINT line) {
        menuOf(*panel(L"MAIN", L"Layers"));
        panel(L"MAIN", L"Layers")->SendMessage(WM_COMMAND, 53246 + line);
    }
    VxString group() { return panel(L"MAIN", L"Layers")->toolPaletteGroup().text(); }
};

TEST_F(ProfileEventTest, SwitchTakesWhatTheNewProfileHasSavedAndTouchesNoPanelOnScreen) {
    show();
    chooseGroup(0);
    bench().profiles().save();
    chooseGroup(2);
    ASSERT_EQ(group(), L"Windows");
    bench().profiles().switchTo("Other");
    EXPECT_EQ(group(), L"Windows") << "nothing is saved there";
    const std::vector<std::string> before = shown();
    panelSet().togglePanel(53501);
    bench().profiles().switchTo("Default");
    EXPECT_EQ(group(), L"Doors");
    EXPECT_EQ(shown().size(), before.size() - 1) << "what is saved shows at the next refresh";
    panelSet().refreshPanels(0);
    EXPECT_EQ(shown(), std::vector<std::string>{before[1]});
}

TEST_F(ProfileEventTest, SaveWritesWhatIsOnShowUnlessTheApplicationQuits) {
    show();
    chooseGroup(0);
    editor().beginQuit();
    bench().profiles().save();
    EXPECT_EQ(callCount("VxUt::SetAttributeValue"), 0);
    editor().quitAborted();
    bench().profiles().save();
    EXPECT_EQ(callCount("VxUt::SetAttributeValue"), 12) << "three of each of the four panels";
}

// Documents

TEST_F(ManagerReactorsTest, EndOfADocumentIsToldToTheControlsBeforeItsReactorIsTakenOff) {
    show();
    bench().editor().documents().create(L"B");
    bench().editor().beginCommand(L"LINE");
    controlManager()->runWhenQuiescent(std::make_unique<IdleCallback>());
    forget();
    bench().editor().documents().close(*bench().editor().documents().current());
    Road steps;
    for (const workbench::JournalRecord& record : bench().journal().take()) {
        if (record.field("name") == workbench::Value("VxEdInputManager::removeReactor"))
            steps.push_back("reactor off");
        if (record.field("control") == workbench::Value(kControl) &&
            record.field("number") == workbench::Value(1737))
            steps.push_back("1737");
    }
    EXPECT_EQ(steps, (Road{"1737", "reactor off"}));
}

}  // namespace
