#include "tests/workbench/windows/window_fixture.h"
#include "workbench/core/invalid_argument.h"

#include <stdexcept>

namespace workbench {

namespace {

constexpr UINT kPosted = 3001;
constexpr UINT kSecond = 3002;

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

class WindowQueueTest : public WindowTest {
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

TEST_F(WindowQueueTest, APostedMessageWaitsForTheQueue) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    EXPECT_TRUE(window.PostMessage(kPosted, 1, 2));
    EXPECT_EQ(window.count(kPosted), 0);
    windows().runPosted();
    EXPECT_EQ(window.got.back(), (Got{kPosted, 1, 2}));
    windows().runPosted();
    EXPECT_EQ(window.count(kPosted), 1);
}

TEST_F(WindowQueueTest, MessagesPostedMeanwhileRunToo) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    window.onMessage = [&](UINT message) {
        if (message == kPosted)
            window.PostMessage(kSecond);
    };
    window.PostMessage(kPosted);
    windows().runPosted();
    EXPECT_EQ(window.count(kSecond), 1);
}

TEST_F(WindowQueueTest, APostedMessageIsDroppedWithItsWindow) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    window.PostMessage(kPosted);
    window.DestroyWindow();
    windows().runPosted();
    EXPECT_EQ(window.count(kPosted), 0);
    EXPECT_FALSE(window.PostMessage(kPosted));
}

TEST_F(WindowQueueTest, AMessageThatPostsItselfWithoutEndIsNamed) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    windows().setName(window.m_hWnd, "Restless");
    journal().setRecording(false);
    window.onMessage = [&](UINT message) {
        window.got.clear();
        if (message == kPosted)
            window.PostMessage(kPosted);
    };
    window.PostMessage(kPosted);
    try {
        windows().runPosted();
        FAIL() << "it ended";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "posted messages do not end: message 3001 to Test \"Restless\"");
    }
}

TEST_F(WindowQueueTest, TimersFireInTheOrderOfTheirTimes) {
    a.SetTimer(1, 150);
    b.SetTimer(2, 100);
    windows().advance(300);
    EXPECT_EQ(firings, (Firings{"100:b2", "150:a1", "200:b2", "300:a1", "300:b2"}));
    EXPECT_EQ(clock().now(), 300);
}

TEST_F(WindowQueueTest, OfTwoTimersDueAtOnceTheOneStartedFirstFires) {
    b.SetTimer(1, 50);
    a.SetTimer(1, 50);
    windows().advance(50);
    EXPECT_EQ(firings, (Firings{"50:b1", "50:a1"}));
}

TEST_F(WindowQueueTest, ATimerDoesNotFireBeforeItsTime) {
    a.SetTimer(1, 150);
    windows().advance(149);
    EXPECT_EQ(firings, Firings{});
    windows().advance(1);
    EXPECT_EQ(firings, Firings{"150:a1"});
}

TEST_F(WindowQueueTest, ATimerThatIsStartedAgainWaitsAnew) {
    a.SetTimer(1, 150);
    windows().advance(100);
    a.SetTimer(1, 150);
    windows().advance(149);
    EXPECT_EQ(firings, Firings{});
    windows().advance(1);
    EXPECT_EQ(firings, Firings{"250:a1"});
}

TEST_F(WindowQueueTest, ATimerIsDueFromItsLastTimeHoweverLongItsHandlerTakes) {
    a.onTimer = [&](UINT) { clock().advanceTo(clock().now() + 30); };
    a.SetTimer(1, 100);
    windows().advance(200);
    EXPECT_EQ(firings, (Firings{"100:a1", "200:a1"}));
}

TEST_F(WindowQueueTest, AKilledTimerFiresNoMore) {
    a.onTimer = [&](UINT) { b.KillTimer(1); };
    a.SetTimer(1, 100);
    b.SetTimer(1, 100);
    windows().advance(100);
    EXPECT_EQ(firings, Firings{"100:a1"});
}

TEST_F(WindowQueueTest, AnUnknownTimerIsKilledInPeace) {
    a.SetTimer(1, 100);
    a.KillTimer(2);
    windows().advance(100);
    EXPECT_EQ(firings, Firings{"100:a1"});
}

TEST_F(WindowQueueTest, ATimerGoesWithItsWindow) {
    a.onTimer = [&](UINT) { b.DestroyWindow(); };
    a.SetTimer(1, 100);
    b.SetTimer(1, 100);
    windows().advance(500);
    EXPECT_EQ(firings.size(), 5U);
    EXPECT_EQ(firings.back(), "500:a1");
}

TEST_F(WindowQueueTest, WhatATimerPostsRunsBeforeTheNextTimer) {
    a.onTimer = [&](UINT) { b.PostMessage(kPosted); };
    a.SetTimer(1, 100);
    b.SetTimer(1, 101);
    windows().advance(101);
    EXPECT_EQ(firings, (Firings{"100:a1", "100:b posted", "101:b1"}));
}

TEST_F(WindowQueueTest, APeriodOfZeroCountsAsOneMillisecond) {
    a.SetTimer(1, 0);
    windows().advance(2);
    EXPECT_EQ(firings, (Firings{"1:a1", "2:a1"}));
}

TEST_F(WindowQueueTest, InputIsShownToTheWindowAndThenToItsParents) {
    TestWindow top;
    TestWindow middle;
    TestWindow leaf;
    ASSERT_TRUE(make(top) && make(middle, &top) && make(leaf, &middle));
    std::vector<const CWnd*> order;
    const auto watch = [&order](const CWnd* window) {
        return [&order, window](const MSG&) {
            order.push_back(window);
            return BOOL{0};
        };
    };
    top.onPreTranslate = watch(&top);
    middle.onPreTranslate = watch(&middle);
    leaf.onPreTranslate = watch(&leaf);
    windows().input(leaf.m_hWnd, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(order, (std::vector<const CWnd*>{&leaf, &middle, &top}));
    EXPECT_EQ(leaf.got.back(), (Got{WM_KEYDOWN, VK_RETURN, 0}));
}

TEST_F(WindowQueueTest, AConsumedInputIsNotSent) {
    TestWindow parent;
    TestWindow leaf;
    ASSERT_TRUE(make(parent) && make(leaf, &parent));
    HWND seen = nullptr;
    parent.onPreTranslate = [&](const MSG& message) {
        seen = message.hwnd;
        return BOOL{1};
    };
    windows().input(leaf.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ(seen, leaf.m_hWnd);
    EXPECT_EQ(leaf.count(WM_KEYDOWN), 0);
}

TEST_F(WindowQueueTest, InputWithoutAWindowGoesToTheFocus) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    windows().input(nullptr, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(window.count(WM_KEYDOWN), 0);
    window.SetFocus();
    windows().input(nullptr, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(window.count(WM_KEYDOWN), 1);
}

TEST_F(WindowQueueTest, AWindowMayEndWhileItLooksAtAnInput) {
    TestWindow parent;
    TestWindow leaf;
    ASSERT_TRUE(make(parent) && make(leaf, &parent));
    leaf.onPreTranslate = [&](const MSG&) {
        parent.DestroyWindow();
        return BOOL{0};
    };
    windows().input(leaf.m_hWnd, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(leaf.count(WM_KEYDOWN), 0);
}

TEST_F(WindowQueueTest, AnInvalidArgumentEndsOneMessageWithABox) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    windows().setName(window.m_hWnd, "Faulty");
    bool isCalm = false;
    window.onMessage = [&isCalm](UINT) {
        if (!isCalm)
            throw InvalidArgument();
    };
    journal().take();
    window.PostMessage(kPosted);
    window.PostMessage(kSecond);
    window.SetTimer(1, 10);
    windows().advance(10);
    windows().input(window.m_hWnd, WM_KEYDOWN, VK_RETURN, 0);
    const std::vector<JournalRecord> boxes = journal().take("box");
    ASSERT_EQ(boxes.size(), 4U);
    EXPECT_EQ(boxes[0].field("text"), Value("An invalid argument was encountered."));
    EXPECT_TRUE(boxes[0].field("string").isNil());
    EXPECT_EQ(boxes[0].field("owner"), Value("Faulty"));
    isCalm = true;
}

TEST_F(WindowQueueTest, AnotherFailureIsLeftToTheCaller) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    window.onMessage = [](UINT message) {
        if (message == kPosted)
            throw std::logic_error("a fault of the test");
    };
    window.PostMessage(kPosted);
    EXPECT_THROW(windows().runPosted(), std::logic_error);
}

}  // namespace workbench
