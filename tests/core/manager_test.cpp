#include "tests/support/bench.h"

#include "workbench/editor/editor.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/toolkit/palette_set_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr const char* kControl = "LayerLockTransparencySliderControl";

/// Writes down what it hears.
class Listener : public VxDaDashboardReactor {
public:
    void panelsWillUnload() override { heard.emplace_back("willUnload"); }
    void panelsUnloaded() override { heard.emplace_back("unloaded"); }
    void panelsWillLoad() override { heard.emplace_back("willLoad"); }
    void panelsLoaded() override { heard.emplace_back("loaded"); }
    void controlsWillBeReleased() override { heard.emplace_back("release"); }
    void visibilityChanged(BOOL visible) override {
        heard.emplace_back(visible != 0 ? "on" : "off");
    }
    std::vector<std::string> take() { return std::exchange(heard, {}); }
    std::vector<std::string> heard;
};

using Heard = std::vector<std::string>;

class ManagerTest : public support::Bench {
protected:
    void loadWithListener() {
        env("ENABLEDASHBOARD", "1");
        ASSERT_TRUE(load());
        addListener(m_listener);
        newDocument(L"A");
    }
    void addListener(VxDaDashboardReactor& listener) {
        exported<VxDaAddOrRemoveReactorFn>("VxDaAddOrRemoveReactor")(&listener, 1);
    }
    void show() { type(L"DASHBOARDOLD\n"); }
    bool isOnScreen() { return paletteSet() != nullptr && paletteSet()->IsWindowVisible(); }
    bool got(std::int64_t number) {
        const auto messages = messagesOf(kControl);
        return std::find(messages.begin(), messages.end(), number) != messages.end();
    }
    Listener m_listener;
};

// Showing

TEST_F(ManagerTest, FirstShowTellsTheListenersThreeTimesThatTheBarIsOn) {
    loadWithListener();
    show();
    EXPECT_EQ(m_listener.take(), (Heard{"on", "on", "willLoad", "loaded", "on"}));
    EXPECT_TRUE(isOnScreen());
}

TEST_F(ManagerTest, SecondShowTellsOnceAndBuildsNothing) {
    loadWithListener();
    show();
    m_listener.take();
    show();
    EXPECT_EQ(m_listener.take(), Heard{"on"});
}

TEST_F(ManagerTest, ShowAfterTheUsersCloseBringsTheBarBack) {
    loadWithListener();
    show();
    workbench::closePaletteSet(*paletteSet());
    settle();
    EXPECT_FALSE(isOnScreen());
    m_listener.take();
    show();
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(m_listener.take(), (Heard{"on", "on"}));
}

TEST_F(ManagerTest, UsersCloseReachesTheListeners) {
    loadWithListener();
    show();
    m_listener.take();
    workbench::closePaletteSet(*paletteSet());
    settle();
    EXPECT_EQ(m_listener.take(), Heard{"off"});
}

TEST_F(ManagerTest, WithoutAFrameTheBarStaysHiddenAndNothingBreaks) {
    fail("vxedGetZorqFrame");
    loadWithListener();
    show();
    EXPECT_FALSE(isOnScreen());
}

// Events

struct EventCase {
    const char* what;
    std::int64_t number;
};

class EventTest : public ManagerTest, public testing::WithParamInterface<EventCase> {
protected:
    void raise(const std::string& what) {
        workbench::EditorReactors& editor = bench().editor().reactors();
        if (what == "command starts")
            editor.commandWillStart(L"LINE");
        if (what == "command ended")
            editor.commandEnded(L"LINE");
        if (what == "command cancelled")
            editor.commandCancelled(L"LINE");
        if (what == "command failed")
            editor.commandFailed(L"LINE");
        if (what == "variable changed")
            editor.sysVarChanged(L"LTSCALE", true);
        if (what == "variable will change")
            editor.sysVarWillChange(L"LTSCALE");
        if (what == "view changed")
            editor.viewChanged();
        if (what.starts_with("document to be activated"))
            newDocument(L"B");
        if (what.starts_with("document became current"))
            newDocument(L"B");
        if (what.ends_with("destroyed"))
            closeDocument(L"A");
        settle();
    }
};

TEST_P(EventTest, ReachesEveryControlUnderItsNumber) {
    showDashboard();
    journal();
    raise(GetParam().what);
    EXPECT_TRUE(got(GetParam().number));
}

INSTANTIATE_TEST_SUITE_P(
    Table, EventTest,
    testing::Values(EventCase{"document to be activated", 1724},
                    EventCase{"last document destroyed", 1725},
                    EventCase{"document became current", 1726}, EventCase{"variable changed", 1727},
                    EventCase{"variable will change", 1728}, EventCase{"command starts", 1729},
                    EventCase{"command failed", 1729}, EventCase{"command ended", 1730},
                    EventCase{"command cancelled", 1731}, EventCase{"view changed", 1736},
                    EventCase{"document to be destroyed", 1737}));

TEST_F(ManagerTest, FailedCommandIsToldLikeAStartAndNotLikeAnEnd) {
    showDashboard();
    begin(L"LINE");
    journal();
    finish("failed");
    const auto messages = messagesOf(kControl);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), 1729), 1);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), 1730), 0);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), 1731), 0);
}

TEST_F(ManagerTest, VariableChangedCarriesSuccess) {
    showDashboard();
    journal();
    bench().editor().reactors().sysVarChanged(L"LTSCALE", false);
    for (const auto& record : journal("message")) {
        if (record.field("number") == workbench::Value(1727)) {
            EXPECT_EQ(record.field("wparam"), workbench::Value(0));
            EXPECT_EQ(record.field("lparam"), workbench::Value("LTSCALE"));
        }
    }
}

TEST_F(ManagerTest, VariableChangeBeforeTheFirstShowReachesTheControlManagerAlone) {
    env("ENABLEDASHBOARD", "1");
    ASSERT_TRUE(load());
    newDocument(L"A");
    journal();
    set(L"LTSCALE", 2.0);
    const std::vector<std::string> made = calls();
    EXPECT_NE(std::find(made.begin(), made.end(), "vxedGetVar"), made.end())
        << "the first change of any variable reads the material mode";
    EXPECT_TRUE(messagesOf(kControl).empty());
}

TEST_F(ManagerTest, EventsAfterThePanelsWentAreHarmless) {
    showDashboard();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    journal();
    set(L"LTSCALE", 2.0);
    newDocument(L"B");
    closeDocument(L"B");
    bench().editor().viewChanged();
    EXPECT_TRUE(messagesOf(kControl).empty());
}

// Clean screen

TEST_F(ManagerTest, CleanScreenHidesTheBarAndBringsItBack) {
    loadWithListener();
    show();
    m_listener.take();
    set(L"CleanScreenState", 1);
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(m_listener.take(), (Heard{"off", "off"}));
    set(L"CleanScreenState", 0);
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(m_listener.take(), (Heard{"on", "on"}));
}

TEST_F(ManagerTest, CleanScreenNameIsTakenWithoutRegardToCase) {
    showDashboard();
    set(L"CleanScreenState", 1);
    set(L"CleanScreenState", 0);
    EXPECT_TRUE(isOnScreen());
    workbench::closePaletteSet(*paletteSet());
    settle();
    show();
    bench().editor().reactors().sysVarChanged(L"CLEANSCREENSTATE", true);
    EXPECT_TRUE(isOnScreen());
}

TEST_F(ManagerTest, CleanScreenEnteredWithTheBarHiddenDoesNotBringItUpLater) {
    showDashboard();
    set(L"CleanScreenState", 1);
    set(L"CleanScreenState", 0);
    workbench::closePaletteSet(*paletteSet());
    settle();
    set(L"CleanScreenState", 1);
    set(L"CleanScreenState", 0);
    EXPECT_FALSE(isOnScreen());
}

// Documents

TEST_F(ManagerTest, LastDocumentTakesTheBarAlongAndTheNextBringsItBack) {
    loadWithListener();
    show();
    closeDocument(L"A");
    EXPECT_FALSE(isOnScreen());
    newDocument(L"B");
    EXPECT_TRUE(isOnScreen());
}

TEST_F(ManagerTest, BarStaysHiddenForTheNextDocumentInCleanScreen) {
    showDashboard();
    closeDocument(L"A");
    set(L"CleanScreenState", 1);
    newDocument(L"B");
    EXPECT_FALSE(isOnScreen());
}

TEST_F(ManagerTest, ClosingOneOfTwoDocumentsChangesNothing) {
    showDashboard();
    newDocument(L"B");
    journal();
    closeDocument(L"A");
    EXPECT_TRUE(isOnScreen());
    EXPECT_FALSE(got(1725));
}

TEST_F(ManagerTest, LastDocumentDuringTheQuitLeavesTheBar) {
    showDashboard();
    bench().editor().quitBegin();
    journal();
    closeDocument(L"A");
    EXPECT_TRUE(isOnScreen());
    EXPECT_FALSE(got(1725));
}

TEST_F(ManagerTest, AbortedQuitIsForgotten) {
    showDashboard();
    bench().editor().quitBegin();
    bench().editor().quitAbort();
    closeDocument(L"A");
    EXPECT_FALSE(isOnScreen());
}

// Profiles

TEST_F(ManagerTest, ProfileIsWrittenWhenItIsSavedButNotDuringTheQuit) {
    showDashboard();
    calls();
    bench().editor().quitBegin();
    bench().profiles().save();
    std::vector<std::string> made = calls();
    EXPECT_EQ(std::find(made.begin(), made.end(), "VxUt::AddChildNode"), made.end());
    bench().editor().quitAbort();
    bench().profiles().save();
    made = calls();
    EXPECT_NE(std::find(made.begin(), made.end(), "VxUt::AddChildNode"), made.end());
}

TEST_F(ManagerTest, SwitchOfProfileLeavesThePanelsOnScreenAlone) {
    showDashboard();
    const auto before = panelsOnScreen();
    bench().profiles().switchTo("Other");
    settle();
    EXPECT_EQ(panelsOnScreen(), before);
}

// Listeners

class LeavingListener final : public Listener {
public:
    void visibilityChanged(BOOL visible) override {
        Listener::visibilityChanged(visible);
        if (leave)
            leave();
    }
    std::function<void()> leave;
};

TEST_F(ManagerTest, ListenerThatLeavesFromInsideACallEndsTheEventAsAnInvalidArgument) {
    env("ENABLEDASHBOARD", "1");
    ASSERT_TRUE(load());
    newDocument(L"A");
    LeavingListener leaving;
    addListener(leaving);
    addListener(m_listener);
    leaving.leave = [this, &leaving] {
        leaving.leave = nullptr;
        exported<VxDaAddOrRemoveReactorFn>("VxDaAddOrRemoveReactor")(&m_listener, 0);
    };
    show();
    EXPECT_EQ(texts("box"), std::vector<std::string>{"An invalid argument was encountered."});
    unload();
}

TEST_F(ManagerTest, ListenersAreCalledInTheOrderOfTheirRegistration) {
    loadWithListener();
    std::vector<int> order;
    struct Numbered final : Listener {
        Numbered(std::vector<int>& into, int number) : m_into(into), m_number(number) {}
        void panelsLoaded() override { m_into.push_back(m_number); }
        std::vector<int>& m_into;
        int m_number;
    };
    Numbered first(order, 1);
    Numbered second(order, 2);
    addListener(first);
    addListener(second);
    show();
    EXPECT_EQ(order, (std::vector<int>{1, 2}));
    unload();
}

}  // namespace
