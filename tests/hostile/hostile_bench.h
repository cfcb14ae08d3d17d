#pragma once

#include "tests/hostile/attack.h"
#include "tests/hostile/gesture.h"
#include "tests/module/manager_fixture.h"
#include "tests/support/bench.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace hostile {

/// Which of the two modules is loaded first, so that its reactors are told first.
enum class Order { HostileFirst, DashboardFirst };

constexpr std::size_t indexOf(Point point) {
    return static_cast<std::size_t>(point);
}

/// How often the hostile module came to each point, by `indexOf`.
using Counts = std::array<int, indexOf(Point::kCount)>;

/// How often a gesture brings the hostile module to each point.
struct Reached {
    std::string gesture;
    Counts counts{};

    int& at(Point point) { return counts[indexOf(point)]; }
    int at(Point point) const { return counts[indexOf(point)]; }
};

/// Test fixture: the dashboard on show beside the hostile module, two documents "A" and "B" open, and
/// what has to hold after an attack.
class HostileBench : public support::Bench {
protected:
    HostileBench();
    void TearDown() override;

    void start(Order order);
    /// All gestures on the dashboard as it stands now, by different names.
    std::vector<Gesture> gestures();
    /// Makes each gesture once to see where it leads.
    std::vector<Reached> survey();

    /// Makes a gesture during which the module strikes. False if it didn't come to that.
    bool attack(const Gesture& gesture, Point point, int occurrence, Action action);
    /// After an attack: the dashboard is in order, or it is cleanly gone. It is on show afterwards.
    void expectSurvival();
    /// Unloads both modules, loads them again and shows the dashboard, which must work.
    void expectFreshStart();

private:
    void loadModules();
    void unloadDashboard();
    void loadDashboard();
    void calmDown();
    void openDocuments();
    bool isInService();
    void expectGone();
    void expectLivingWindows();
    void showAllPanels();
    void expectListenersInOrder();
    void expectFadeSliderWorks();
    void dropNotes();
    void prepare();
    void listen();
    void notifyIfLoaded(int code);
    bool makeArmed(const Gesture& gesture, Point point, int occurrence, Action action);
    Counts countsOf(const Gesture& gesture, Point point);
    int count(Point point);
    template <class Function>
    Function hostileExport(const char* name);

    Order m_order = Order::HostileFirst;
    Stage m_stage;
    DashboardListener m_witness;
};

}  // namespace hostile
