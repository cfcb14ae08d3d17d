#include "tests/support/allocation_counter.h"
#include "tests/workbench/windows/window_fixture.h"

#include <iterator>

namespace workbench {

namespace {

constexpr UINT kChained = 2001;
constexpr UINT kOnlyBase = 2002;
constexpr UINT kUnknown = 2003;
constexpr UINT kNested = 2004;
constexpr UINT kSuicide = 2005;

using Log = std::vector<std::string>;

/// Handles everything that the window classes leave to it.
class LoggingWidget : public Widget {
public:
    explicit LoggingWidget(Log& log) : m_log(log) {}
    bool handle(Window&, UINT message, WPARAM, LPARAM, LRESULT& answer) override {
        if (message < kChained && message != WM_COMMAND)
            return false;
        m_log.push_back("widget");
        answer = 100;
        return true;
    }

private:
    Log& m_log;
};

class BaseWindow : public CWnd {
public:
    const MessageMap& GetMessageMap() const override { return GetThisMessageMap(); }
    Log log;

protected:
    static const MessageMap& GetThisMessageMap();
    LRESULT onChained(WPARAM, LPARAM) {
        log.push_back("base");
        return Default() + 10;
    }
    LRESULT onOnlyBase(WPARAM wParam, LPARAM) {
        log.push_back("only base");
        return static_cast<LRESULT>(wParam);
    }
    LRESULT onBaseCommand(WPARAM, LPARAM) {
        log.push_back("base command");
        return 0;
    }
};

const MessageMap& BaseWindow::GetThisMessageMap() {
    static constexpr MessageEntry kRows[] = {
        {WM_COMMAND, to<&BaseWindow::onBaseCommand>, 100, 199},
        {kChained, to<&BaseWindow::onChained>},
        {kOnlyBase, to<&BaseWindow::onOnlyBase>},
    };
    static_assert(hostapi::isAscendingAndUnique(kRows));
    static const MessageMap kMap{&CWnd::GetThisMessageMap, kRows, std::size(kRows)};
    return kMap;
}

class DerivedWindow : public BaseWindow {
public:
    const MessageMap& GetMessageMap() const override {
        static constexpr MessageEntry kRows[] = {
            {WM_COMMAND, to<&DerivedWindow::onCommand>, 150, 160},
            {WM_COMMAND, to<&DerivedWindow::onPassedCommand>, 170, 170},
            {kChained, to<&DerivedWindow::onChained>},
            {kNested, to<&DerivedWindow::onNested>},
            {kSuicide, to<&DerivedWindow::onSuicide>},
        };
        static_assert(hostapi::isAscendingAndUnique(kRows));
        static const MessageMap kMap{&BaseWindow::GetThisMessageMap, kRows, std::size(kRows)};
        return kMap;
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        log.push_back("OnCommand");
        return BaseWindow::OnCommand(wParam, lParam);
    }
    CWnd* other = nullptr;

private:
    LRESULT onChained(WPARAM, LPARAM) {
        log.push_back("derived");
        return Default() + 1;
    }
    LRESULT onNested(WPARAM, LPARAM) {
        log.push_back("nested");
        // Each Default goes on with its own message, whatever was sent in between.
        const LRESULT chained = SendMessage(kChained);
        const LRESULT others = other == nullptr ? 0 : other->SendMessage(kChained);
        return chained + others + 1000 * Default();
    }
    LRESULT onSuicide(WPARAM, LPARAM) {
        delete this;
        return 5;
    }
    LRESULT onCommand(WPARAM, LPARAM) {
        log.push_back("derived command");
        return 0;
    }
    LRESULT onPassedCommand(WPARAM, LPARAM) {
        log.push_back("passed command");
        return Default();
    }
};

class MessageDispatcherTest : public WindowTest {
protected:
    template <class Type>
    void makeLogged(Type& window) {
        ASSERT_TRUE(make(window, nullptr, 0, std::make_unique<LoggingWidget>(window.log)));
    }
};

}  // namespace

TEST_F(MessageDispatcherTest, DefaultGoesUpTheTablesAndEndsAtTheWidget) {
    DerivedWindow window;
    makeLogged(window);
    EXPECT_EQ(window.SendMessage(kChained), 111);
    EXPECT_EQ(window.log, (Log{"derived", "base", "widget"}));
}

TEST_F(MessageDispatcherTest, AMessageThatOnlyTheBaseHandlesIsFoundInItsTable) {
    DerivedWindow window;
    makeLogged(window);
    EXPECT_EQ(window.SendMessage(kOnlyBase, 42), 42);
    EXPECT_EQ(window.log, Log{"only base"});
}

TEST_F(MessageDispatcherTest, AMessageThatNoTableHasGoesToTheWidget) {
    DerivedWindow window;
    makeLogged(window);
    EXPECT_EQ(window.SendMessage(kUnknown), 100);
}

TEST_F(MessageDispatcherTest, AMessageThatNobodyHandlesIsAnsweredZero) {
    DerivedWindow window;
    ASSERT_TRUE(make(window));
    EXPECT_EQ(window.SendMessage(kUnknown), 0);
    EXPECT_EQ(window.SendMessage(kChained), 11);
}

TEST_F(MessageDispatcherTest, NestedSendsKeepEachDefaultAtItsOwnMessage) {
    DerivedWindow window;
    DerivedWindow other;
    makeLogged(window);
    makeLogged(other);
    window.other = &other;
    EXPECT_EQ(window.SendMessage(kNested), 111 + 111 + 1000 * 100);
    EXPECT_EQ(window.log, (Log{"nested", "derived", "base", "widget", "widget"}));
}

TEST_F(MessageDispatcherTest, AnObjectMayBeDeletedInItsOwnHandler) {
    auto* const window = new DerivedWindow;
    ASSERT_TRUE(make(*window));
    const HWND handle = window->m_hWnd;
    EXPECT_EQ(SendMessage(handle, kSuicide, 0, 0), 5);
    EXPECT_FALSE(IsWindow(handle));
}

TEST_F(MessageDispatcherTest, ATableThatCameInThePlaceOfAnotherIsSearchedAnew) {
    // As of two modules that are loaded one after the other at the same address.
    struct Loaded : public CWnd {
        explicit Loaded(const MessageMap& table) : map(table) {}
        const MessageMap& GetMessageMap() const override { return map; }
        const MessageMap& map;
    };
    constexpr MessageEntry kFirst[] = {
        {kOnlyBase, [](CWnd*, WPARAM, LPARAM) { return LRESULT{1}; }},
    };
    constexpr MessageEntry kSecond[] = {
        {kOnlyBase, [](CWnd*, WPARAM, LPARAM) { return LRESULT{2}; }},
        {kUnknown, [](CWnd*, WPARAM, LPARAM) { return LRESULT{3}; }},
    };
    MessageMap map{nullptr, kFirst, std::size(kFirst)};
    {
        Loaded window(map);
        ASSERT_TRUE(make(window));
        EXPECT_EQ(window.SendMessage(kOnlyBase), 1);
        EXPECT_EQ(window.SendMessage(kUnknown), 0);
        window.DestroyWindow();
        // An object may get messages without its window.
        EXPECT_EQ(window.WindowProc(kOnlyBase, 0, 0), 1);
    }
    map = {nullptr, kSecond, std::size(kSecond)};
    Loaded window(map);
    ASSERT_TRUE(make(window));
    EXPECT_EQ(window.SendMessage(kOnlyBase), 2);
    EXPECT_EQ(window.SendMessage(kUnknown), 3);
}

TEST_F(MessageDispatcherTest, AWidgetMayEndItsOwnWindow) {
    class Ending : public Widget {
    public:
        bool handle(Window& window, UINT message, WPARAM, LPARAM, LRESULT& answer) override {
            if (message != kUnknown)
                return false;
            window.object->DestroyWindow();
            answer = m_answer;  // still there, although the window is gone
            return true;
        }

    private:
        LRESULT m_answer = 77;
    };
    TestWindow window;
    ASSERT_TRUE(make(window, nullptr, 0, std::make_unique<Ending>()));
    EXPECT_EQ(window.SendMessage(kUnknown), 77);
    EXPECT_EQ(window.m_hWnd, nullptr);
}

TEST_F(MessageDispatcherTest, TheNearestRangeGetsACommand) {
    DerivedWindow window;
    makeLogged(window);
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 150), 1);
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 160), 1);
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 161), 1);
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 199), 1);
    EXPECT_EQ(window.log, (Log{"OnCommand", "derived command", "OnCommand", "derived command",
                               "OnCommand", "base command", "OnCommand", "base command"}));
}

TEST_F(MessageDispatcherTest, ACommandOutsideAllRangesGoesToTheWidget) {
    DerivedWindow window;
    makeLogged(window);
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 99), 100);
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 200), 100);
    EXPECT_EQ(window.log, (Log{"OnCommand", "widget", "OnCommand", "widget"}));
}

TEST_F(MessageDispatcherTest, ACommandHandlersDefaultGoesOnInTheBaseTable) {
    DerivedWindow window;
    makeLogged(window);
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 170), 1);
    EXPECT_EQ(window.log, (Log{"OnCommand", "passed command", "base command"}));
}

TEST_F(MessageDispatcherTest, ANotificationOfAControlRunsNoCommandRow) {
    DerivedWindow window;
    makeLogged(window);
    const LPARAM control = reinterpret_cast<LPARAM>(window.m_hWnd);
    window.SendMessage(WM_COMMAND, MAKELONG(150, EN_KILLFOCUS), control);
    EXPECT_EQ(window.log, (Log{"OnCommand", "widget"}));
}

TEST_F(MessageDispatcherTest, AFontThatIsSetStaysWithTheWindow) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    window.SendMessage(WM_SETFONT, 12, 1);
    EXPECT_EQ(windows().find(window.m_hWnd)->font, 12U);
}

TEST_F(MessageDispatcherTest, TheJournalHasTheMessagesOfNamedWindowsOnly) {
    TestWindow named;
    TestWindow part;
    ASSERT_TRUE(make(named));
    ASSERT_TRUE(make(part, &named));
    windows().setName(named.m_hWnd, "FadeSlider");
    journal().take();
    named.SendMessage(kUnknown, 3, -4);
    part.SendMessage(kUnknown, 3, -4);
    const std::vector<JournalRecord> records = journal().take("message");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].field("control"), Value("FadeSlider"));
    EXPECT_EQ(records[0].field("number"), Value(2003));
    EXPECT_EQ(records[0].field("wparam"), Value(3));
    EXPECT_EQ(records[0].field("lparam"), Value(-4));
}

TEST_F(MessageDispatcherTest, SendingAllocatesNothingWhileTheJournalRests) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    windows().setName(window.m_hWnd, "Control");
    window.got.reserve(8);
    journal().setRecording(false);
    const std::size_t before = support::allocationCount();
    window.SendMessage(kUnknown, 2);
    window.SendMessage(WM_COMMAND, 2);
    EXPECT_EQ(support::allocationCount(), before);
    EXPECT_EQ(window.count(kUnknown), 1);
}

namespace {

/// A control that takes what it tells its parent itself.
class ReflectedControl : public TestWindow {
public:
    const MessageMap& GetMessageMap() const override {
        static constexpr MessageEntry kRows[] = {
            {WM_REFLECT_BASE + WM_NOTIFY, to<&ReflectedControl::onNotify>},
            {WM_REFLECT_BASE + WM_COMMAND, to<&ReflectedControl::onCommand>},
        };
        static_assert(hostapi::isAscendingAndUnique(kRows));
        static const MessageMap kMap{&CWnd::GetThisMessageMap, kRows, std::size(kRows)};
        return kMap;
    }

private:
    LRESULT onNotify(WPARAM, LPARAM) { return 5; }
    LRESULT onCommand(WPARAM, LPARAM) { return 5; }
};

/// A parent that counts what comes to it.
class NotedParent : public TestWindow {
public:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        ++commands;
        return CWnd::OnCommand(wParam, lParam);
    }
    int commands = 0;
};

}  // namespace

TEST_F(MessageDispatcherTest, ANotificationGoesToTheControlThatTakesItItself) {
    NotedParent above;
    ReflectedControl control;
    ASSERT_TRUE(make(above) && make(control, &above, 3));
    const auto handle = reinterpret_cast<LPARAM>(control.m_hWnd);
    EXPECT_EQ(above.SendMessage(WM_COMMAND, 3, handle), 1);
    EXPECT_EQ(above.commands, 0);
    EXPECT_EQ(control.got.back(), (Got{WM_REFLECT_BASE + WM_COMMAND, 3, handle}));
    const NMHDR notification{control.m_hWnd, 3, TVN_ENDLABELEDIT};
    EXPECT_EQ(above.SendMessage(WM_NOTIFY, 3, reinterpret_cast<LPARAM>(&notification)), 5);
    // A menu's command has no control.
    above.SendMessage(WM_COMMAND, 3, 0);
    EXPECT_EQ(above.commands, 1);
}

TEST_F(MessageDispatcherTest, ANotificationThatItsControlDoesNotTakeIsTheParents) {
    NotedParent above;
    TestWindow control;
    ASSERT_TRUE(make(above) && make(control, &above, 3));
    above.SendMessage(WM_COMMAND, 3, reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_EQ(above.commands, 1);
    EXPECT_EQ(control.count(WM_REFLECT_BASE + WM_COMMAND), 0);
}

TEST_F(MessageDispatcherTest, ItTellsInWhoseHandlerTheHostIs) {
    TestWindow outer;
    ASSERT_TRUE(make(outer));
    HWND inPlain = outer.m_hWnd;
    outer.onMessage = [&](UINT) { inPlain = windows().messages().handling(); };
    outer.SendMessage(kUnknown);
    // The object's own procedure is no handler of a table.
    EXPECT_EQ(inPlain, nullptr);
    EXPECT_EQ(windows().messages().handling(), nullptr);
}

}  // namespace workbench
