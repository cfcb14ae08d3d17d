#include "tests/hostile/hostile_bench.h"

#include "tests/hostile/attack_names.h"
#include "tests/hostile/host.h"
#include "tests/hostile/hostile_menu.h"
#include "workbench/base/turn.h"
#include "workbench/core/invalid_argument.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/slider_gestures.h"
#include "workbench/loader/module_loader.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/zorq/menu_data.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>

namespace hostile {

namespace {

constexpr const char* kFadeControl = "LayerLockTransparencySliderControl";
constexpr const wchar_t* kFade = L"LAYLOCKFADECTL";
constexpr int kNoSuchCode = 99;
constexpr Point kNowhere = Point::kCount;

}  // namespace

HostileBench::HostileBench()
    : m_stage{[this] { unloadDashboard(); }, [this] { loadDashboard(); },
              [this](int code) { notifyIfLoaded(code); },
              [this](Point point) {
                  hostileExport<HostileReachFn>("HostileReach")(static_cast<int>(point));
              }} {}

void HostileBench::TearDown() {
    if (!HasFatalFailure())
        calmDown();
    dropNotes();
    Bench::TearDown();
}

template <class Function>
Function HostileBench::hostileExport(const char* name) {
    workbench::LibraryTable& libraries = bench().modules().libraries();
    return reinterpret_cast<Function>(libraries.symbol(libraries.find(kModule), name));
}

void HostileBench::start(Order order) {
    m_order = order;
    useMenu(hostileMenu());
    env("ENABLEDASHBOARD", "1");
    // The matrix asks what is left afterwards, not how it came to be.
    bench().journal().setRecording(false);
    loadModules();
    openDocuments();
    showAllPanels();
    ASSERT_NE(paletteSet(), nullptr);
    ASSERT_NE(control(workbench::toUtf8(kControl)), nullptr);
}

void HostileBench::loadModules() {
    if (m_order == Order::HostileFirst) {
        ASSERT_TRUE(bench().modules().loadModule(kModule)) << bench().modules().failureText();
    }
    ASSERT_TRUE(load()) << bench().modules().failureText();
    if (m_order == Order::DashboardFirst) {
        ASSERT_TRUE(bench().modules().loadModule(kModule)) << bench().modules().failureText();
    }
    listen();
}

void HostileBench::unloadDashboard() {
    EXPECT_TRUE(unload()) << bench().modules().failureText();
}

void HostileBench::loadDashboard() {
    ASSERT_TRUE(load()) << bench().modules().failureText();
    listen();
}

/// The hostile listener is told first.
void HostileBench::listen() {
    const auto addOrRemove = exported<VxDaAddOrRemoveReactorFn>("VxDaAddOrRemoveReactor");
    addOrRemove(&m_witness, 0);
    hostileExport<HostileListenFn>("HostileListen")();
    addOrRemove(&m_witness, 1);
}

void HostileBench::notifyIfLoaded(int code) {
    if (exported<VxDaNotifyDashboardFn>("VxDaNotifyDashboard") == nullptr)
        throw workbench::gestures::GestureError("the dashboard is not loaded");
    notify(code);
}

std::vector<Gesture> HostileBench::gestures() {
    std::vector<Gesture> all;
    std::set<std::string> names;
    for (const auto& some : {controlGestures(), toolGestures(m_stage), panelGestures(m_stage),
                             sessionGestures(m_stage)}) {
        std::copy_if(
            some.begin(), some.end(), std::back_inserter(all),
            [&names](const Gesture& gesture) { return names.insert(gesture.name).second; });
    }
    return all;
}

std::vector<Reached> HostileBench::survey() {
    std::vector<Reached> all;
    for (const Gesture& gesture : gestures()) {
        Reached& reached = all.emplace_back(Reached{gesture.name, {}});
        reached.counts = countsOf(gesture, kNowhere);
        // The module's own commands stand in for the host's only while it is armed for them.
        const bool runsCommands = reached.at(Point::CommandWillStart) > 0;
        reached.at(Point::CommandRuns) =
            runsCommands ? countsOf(gesture, Point::CommandRuns)[indexOf(Point::CommandRuns)] : 0;
    }
    return all;
}

/// Makes a gesture with the module armed for a point that it never strikes at.
Counts HostileBench::countsOf(const Gesture& gesture, Point point) {
    prepare();
    EXPECT_FALSE(makeArmed(gesture, point, 0, Action::kCount));
    Counts counts{};
    for (std::size_t each = 0; each < counts.size(); ++each)
        counts[each] = count(static_cast<Point>(each));
    return counts;
}

int HostileBench::count(Point point) {
    return hostileExport<HostileCountFn>("HostileCount")(static_cast<int>(point));
}

bool HostileBench::attack(const Gesture& gesture, Point point, int occurrence, Action action) {
    prepare();
    return makeArmed(gesture, point, occurrence, action);
}

bool HostileBench::makeArmed(const Gesture& gesture, Point point, int occurrence, Action action) {
    hostileExport<HostileArmFn>("HostileArm")(static_cast<int>(point), occurrence,
                                              static_cast<int>(action));
    const auto hasStruck = [this] {
        return hostileExport<HostileHasStruckFn>("HostileHasStruck")();
    };
    try {
        gesture.make();
        settle();
    } catch (const workbench::gestures::GestureError& error) {
        // A user can't go on with what is gone.
        EXPECT_TRUE(hasStruck()) << gesture.name << ": " << error.what();
    } catch (const workbench::InvalidArgument& error) {
        // A listener that takes itself off inside a call is at fault, and is told so.
        EXPECT_TRUE(hasStruck()) << gesture.name << ": " << error.what();
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(action, Action::Throw) << gesture.name << ": " << error.what();
    }
    return hasStruck();
}

void HostileBench::expectSurvival() {
    calmDown();
    expectLivingWindows();
    if (!isInService()) {
        expectGone();
        if (bench().modules().isLoaded(workbench::kDashboardModule))
            unloadDashboard();
        loadDashboard();
    }
    openDocuments();
    set(kFade, 20);
    idle();
    wait(200);
    showAllPanels();
    expectListenersInOrder();
    expectFadeSliderWorks();
    expectLivingWindows();
    dropNotes();
}

void HostileBench::expectFreshStart() {
    calmDown();
    unloadDashboard();
    expectGone();
    EXPECT_TRUE(bench().modules().unloadModule(kModule)) << bench().modules().failureText();
    loadModules();
    type(L"DASHBOARDOLD\n");
    showAllPanels();
    expectListenersInOrder();
    expectFadeSliderWorks();
    dropNotes();
}

/// Ends what an interrupted gesture left behind: a held button, a waiting menu or command.
void HostileBench::calmDown() {
    workbench::Toolkit& toolkit = bench().toolkit();
    toolkit.menus().answerNext(nullptr);
    toolkit.boxes().setPresenter(nullptr);
    toolkit.mouse().capture(nullptr);
    toolkit.mouse().leave();
    toolkit.setIconSize(16);
    bench().answers().take("dialog");
    bench().faults().unhide("VxVmTools.qlx");
    bench().editor().quitAbort();
    bench().profiles().switchTo(workbench::ProfileStore::kFirstProfile);
    settle();
    while (bench().editor().finishCommand(workbench::CommandState::Cancelled))
        settle();
    if (bench().editor().documents().current() != nullptr)
        set(L"CleanScreenState", 0);
}

/// The same ground for each gesture: fresh documents and all panels on show.
void HostileBench::prepare() {
    calmDown();
    for (workbench::Document* document : bench().editor().documents().all())
        bench().editor().documents().close(*document);
    settle();
    listen();
    openDocuments();
    showAllPanels();
    dropNotes();
}

void HostileBench::openDocuments() {
    for (const wchar_t* name : {L"B", L"A"}) {
        if (bench().editor().documents().find(name) == nullptr)
            newDocument(name);
    }
    activateDocument(L"A");
}

/// Whether the dashboard is loaded and has a manager.
bool HostileBench::isInService() {
    return bench().modules().isLoaded(workbench::kDashboardModule) && notify(kNoSuchCode) == 1;
}

void HostileBench::expectGone() {
    EXPECT_EQ(paletteSet(), nullptr);
    EXPECT_TRUE(workbench::allPanels(bench().windows()).empty());
    EXPECT_EQ(bench().windows().findByName(kFadeControl), nullptr);
}

/// Asks each window's object for its table, and looks at each item: none of them may have ended.
void HostileBench::expectLivingWindows() {
    for (const HWND top : bench().windows().topWindows()) {
        for (const HWND window : bench().windows().descendants(top)) {
            const CWnd& object = *bench().windows().find(window)->object;
            EXPECT_EQ(object.m_hWnd, window);
            EXPECT_TRUE(object.GetMessageMap().base != nullptr ||
                        object.GetMessageMap().count == 0);
        }
    }
    for (const CQrUiToolPanelItem* item : workbench::allItems(bench().windows()))
        workbench::viewOf(bench().toolkit(), *item);
}

/// Shows the dashboard with all panels, built if they are not.
void HostileBench::showAllPanels() {
    type(L"DASHBOARDOLD\n");
    VxDaPanelList all;
    for (const VxPanelData* panel : *vxedGetPanelSetData())
        all.emplace_back(panel->id, panel->menuGroup);
    vxedSetPanelRefreshFromWS(true);
    {
        const workbench::Turn turn;
        exported<VxDaSetVisiblePanelsFn>("VxDaSetVisiblePanels")(&all);
    }
    settle();
    // So that the fields of fading and of the lens take entries.
    set(kFade, 50);
    set(L"PERSPECTIVE", 1);
}

void HostileBench::expectListenersInOrder() {
    m_witness.take();
    notify(kDashboardReleaseControls);
    notify(kDashboardUnload);
    notify(kDashboardReload);
    EXPECT_EQ(m_witness.take(),
              (Heard{"release", "willUnload", "unloaded", "willLoad", "loaded", "on"}));
}

void HostileBench::expectFadeSliderWorks() {
    set(kFade, 50);
    const HWND fade = control(kFadeControl);
    const HWND slider = part(fade, "slider");
    ASSERT_NE(slider, nullptr);
    ASSERT_TRUE(workbench::gestures::dragSlider(bench().toolkit(), slider, {33}));
    workbench::gestures::releaseSlider(bench().toolkit(), slider);
    wait(400);
    EXPECT_EQ(var(kFade), workbench::Value(33));
    EXPECT_EQ(bench().windows().find(part(fade, "edit"))->text, L"      33%");
    EXPECT_EQ(
        bench().windows().widgetOf<workbench::SliderWidget>(CWnd::FromHandle(slider))->position(),
        33);
}

void HostileBench::dropNotes() {
    takeSent();
    takeJournal();
}

}  // namespace hostile
