#include "tests/workbench/windows/window_fixture.h"

#include <optional>

namespace workbench {

namespace {

constexpr UINT kPosted = 3001;

/// What came when, as "time:timer" words.
using Firings = std::vector<std::string>;

class TimedWindow : public CWnd {
public:
    TimedWindow(Clock& clock, Firings& firings, std::string name)
        : m_clock(clock),
          m_firings(firings),
          m_name(std::move(name)) {}
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_TIMER) {
            m_firings.push_back(std::to_string(m_clock.now()) + ":" + m_name +
                                std::to_string(wParam));
            if (onTimer)
                onTimer(static_cast<UINT>(wParam));
        }
        if (message == kPosted)
            m_firings.push_back(std::to_string(m_clock.now()) + ":" + m_name + " posted");
        return CWnd::WindowProc(message, wParam, lParam);
    }
    std::function<void(UINT)> onTimer;

private:
    Clock& m_clock;
    Firings& m_firings;
    std::string m_name;
};

class WindowTimersTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(make(a));
        ASSERT_TRUE(make(b));
    }

    Firings firings;
    TimedWindow a{clock(), firings, "a"};
    TimedWindow b{clock(), firings, "b"};
};

}  // namespace

TEST_F(WindowTimersTest, TimersFireInTheOrderOfTheirTimes) {
    a.SetTimer(1, 150);
    b.SetTimer(2, 100);
    windows().advance(300);
    EXPECT_EQ(firings, (Firings{"100:b2", "150:a1", "200:b2", "300:a1", "300:b2"}));
    EXPECT_EQ(clock().now(), 300);
}

TEST_F(WindowTimersTest, OfTwoTimersDueAtOnceTheOneStartedFirstFires) {
    b.SetTimer(1, 50);
    a.SetTimer(1, 50);
    windows().advance(50);
    EXPECT_EQ(firings, (Firings{"50:b1", "50:a1"}));
}

TEST_F(WindowTimersTest, ATimerDoesNotFireBeforeItsTime) {
    a.SetTimer(1, 150);
    windows().advance(149);
    EXPECT_EQ(firings, Firings{});
    windows().advance(1);
    EXPECT_EQ(firings, Firings{"150:a1"});
}

TEST_F(WindowTimersTest, ATimerThatIsStartedAgainWaitsAnew) {
    a.SetTimer(1, 150);
    windows().advance(100);
    a.SetTimer(1, 150);
    windows().advance(149);
    EXPECT_EQ(firings, Firings{});
    windows().advance(1);
    EXPECT_EQ(firings, Firings{"250:a1"});
}

TEST_F(WindowTimersTest, ATimerIsDueFromItsLastTimeHoweverLongItsHandlerTakes) {
    a.onTimer = [&](UINT) { clock().advanceTo(clock().now() + 30); };
    a.SetTimer(1, 100);
    windows().advance(200);
    EXPECT_EQ(firings, (Firings{"100:a1", "200:a1"}));
}

TEST_F(WindowTimersTest, AKilledTimerFiresNoMore) {
    a.onTimer = [&](UINT) { b.KillTimer(1); };
    a.SetTimer(1, 100);
    b.SetTimer(1, 100);
    windows().advance(100);
    EXPECT_EQ(firings, Firings{"100:a1"});
}

TEST_F(WindowTimersTest, AnUnknownTimerIsKilledInPeace) {
    a.SetTimer(1, 100);
    a.KillTimer(2);
    windows().advance(100);
    EXPECT_EQ(firings, Firings{"100:a1"});
}

TEST_F(WindowTimersTest, ATimerGoesWithItsWindow) {
    a.onTimer = [&](UINT) { b.DestroyWindow(); };
    a.SetTimer(1, 100);
    b.SetTimer(1, 100);
    windows().advance(500);
    EXPECT_EQ(firings.size(), 5U);
    EXPECT_EQ(firings.back(), "500:a1");
}

TEST_F(WindowTimersTest, WhatATimerPostsRunsBeforeTheNextTimer) {
    a.onTimer = [&](UINT) { b.PostMessage(kPosted); };
    a.SetTimer(1, 100);
    b.SetTimer(1, 101);
    windows().advance(101);
    EXPECT_EQ(firings, (Firings{"100:a1", "100:b posted", "101:b1"}));
}

TEST_F(WindowTimersTest, APeriodOfZeroCountsAsOneMillisecond) {
    a.SetTimer(1, 0);
    windows().advance(2);
    EXPECT_EQ(firings, (Firings{"1:a1", "2:a1"}));
}

TEST_F(WindowTimersTest, TheNextTimerIsKnownWhileOneRuns) {
    EXPECT_EQ(windows().timers().nextDue(), std::nullopt);
    a.SetTimer(1, 150);
    b.SetTimer(1, 100);
    EXPECT_EQ(windows().timers().nextDue(), 100);
    windows().advance(100);
    EXPECT_EQ(windows().timers().nextDue(), 150);
    a.DestroyWindow();
    b.KillTimer(1);
    EXPECT_EQ(windows().timers().nextDue(), std::nullopt);
}

TEST_F(WindowTimersTest, AStaleWindowGetsNoTimer) {
    const HWND stale = a.m_hWnd;
    a.DestroyWindow();
    windows().timers().start(stale, 1, 10);
    EXPECT_EQ(windows().timers().nextDue(), std::nullopt);
}

}  // namespace workbench
