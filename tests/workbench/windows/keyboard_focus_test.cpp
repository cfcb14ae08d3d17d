#include "tests/workbench/windows/window_fixture.h"

namespace workbench {

namespace {

constexpr int kFirstId = 10001;
constexpr int kSecondId = 10002;

/// Writes down the focus notifications that it gets, with the focus at that time.
class FocusParent : public CWnd {
public:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const bool isKill = HIWORD(wParam) == EN_KILLFOCUS;
        const CWnd* const focus = CWnd::GetFocus();
        log.push_back(std::to_string(LOWORD(wParam)) + (isKill ? " lost" : " got") + ", focus " +
                      (focus == nullptr ? "none" : std::to_string(focus->GetDlgCtrlID())));
        controls.push_back(lParam);
        if (onNotification)
            onNotification(isKill);
        return CWnd::OnCommand(wParam, lParam);
    }

    std::vector<std::string> log;
    std::vector<LPARAM> controls;
    std::function<void(bool isKill)> onNotification;
};

using Log = std::vector<std::string>;

class KeyboardFocusTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(make(parent));
        ASSERT_TRUE(makeEdit(first, parent, kFirstId));
        ASSERT_TRUE(makeEdit(second, parent, kSecondId));
        ASSERT_TRUE(make(plain, &parent, 3));
    }

    void holdTyping(const CWnd& field) { windows().widgetOf<FocusReporter>(&field)->typed = true; }

    FocusParent parent;
    CWnd first;
    CWnd second;
    CWnd plain;
};

}  // namespace

TEST_F(KeyboardFocusTest, TheParentHearsOfTheOldFieldFirstWhenTheNewOneHasTheFocus) {
    first.SetFocus();
    second.SetFocus();
    EXPECT_EQ(parent.log,
              (Log{"10001 got, focus 10001", "10001 lost, focus 10002", "10002 got, focus 10002"}));
    EXPECT_EQ(parent.controls[1], reinterpret_cast<LPARAM>(first.m_hWnd));
    EXPECT_EQ(CWnd::GetFocus(), &second);
}

TEST_F(KeyboardFocusTest, FocusOnTheFocusedFieldDoesNothing) {
    first.SetFocus();
    first.SetFocus();
    EXPECT_EQ(parent.log.size(), 1U);
}

TEST_F(KeyboardFocusTest, APlainWindowTakesTheFocusInSilence) {
    first.SetFocus();
    plain.SetFocus();
    EXPECT_EQ(parent.log, (Log{"10001 got, focus 10001", "10001 lost, focus 3"}));
}

TEST_F(KeyboardFocusTest, ADisabledFieldTakesNoFocus) {
    first.SetFocus();
    second.EnableWindow(0);
    second.SetFocus();
    EXPECT_EQ(CWnd::GetFocus(), &first);
    EXPECT_EQ(parent.log.size(), 1U);
}

TEST_F(KeyboardFocusTest, AFieldInAHiddenOrDisabledParentTakesNoFocus) {
    parent.ShowWindow(SW_HIDE);
    first.SetFocus();
    EXPECT_NE(CWnd::GetFocus(), &first);
    parent.ShowWindow(SW_SHOW);
    parent.EnableWindow(0);
    first.SetFocus();
    EXPECT_NE(CWnd::GetFocus(), &first);
}

TEST_F(KeyboardFocusTest, AFieldThatIsDisabledLosesTheFocusAndItsParentHearsOfAnEntry) {
    holdTyping(first);
    first.SetFocus();
    first.EnableWindow(0);
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_EQ(parent.log, (Log{"10001 got, focus 10001", "10001 lost, focus none"}));
}

TEST_F(KeyboardFocusTest, AFieldWhoseParentIsDisabledLosesTheFocusInTheSameWay) {
    holdTyping(first);
    first.SetFocus();
    parent.EnableWindow(0);
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_EQ(parent.log, (Log{"10001 got, focus 10001", "10001 lost, focus none"}));
}

TEST_F(KeyboardFocusTest, WithoutAnEntryTheFocusGoesInSilence) {
    first.SetFocus();
    first.EnableWindow(0);
    first.EnableWindow(1);
    first.SetFocus();
    parent.EnableWindow(0);
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_EQ(parent.log, (Log{"10001 got, focus 10001", "10001 got, focus 10001"}));
}

TEST_F(KeyboardFocusTest, AWindowBesidesTheFocusIsDisabledWithoutEffectOnIt) {
    first.SetFocus();
    second.EnableWindow(0);
    plain.SetFocus();
    EXPECT_EQ(parent.log, (Log{"10001 got, focus 10001", "10001 lost, focus 3"}));
}

TEST_F(KeyboardFocusTest, AFieldWhoseParentIsHiddenLosesTheFocus) {
    first.SetFocus();
    parent.ShowWindow(SW_HIDE);
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_EQ(parent.log.back(), "10001 lost, focus none");
}

TEST_F(KeyboardFocusTest, AFieldThatEndsLosesTheFocus) {
    first.SetFocus();
    first.DestroyWindow();
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(KeyboardFocusTest, AHandlersOwnMoveOfTheFocusStands) {
    first.SetFocus();
    parent.log.clear();
    parent.onNotification = [this](bool isKill) {
        if (isKill)
            plain.SetFocus();
    };
    second.SetFocus();
    // The second field was passed over: it neither got nor lost the focus.
    EXPECT_EQ(parent.log, (Log{"10001 lost, focus 10002"}));
    EXPECT_EQ(CWnd::GetFocus(), &plain);
}

TEST_F(KeyboardFocusTest, AHandlerMayGiveTheFocusBack) {
    first.SetFocus();
    parent.log.clear();
    parent.onNotification = [this](bool isKill) {
        if (isKill)
            first.SetFocus();
    };
    second.SetFocus();
    EXPECT_EQ(parent.log, (Log{"10001 lost, focus 10002", "10001 got, focus 10001"}));
    EXPECT_EQ(CWnd::GetFocus(), &first);
}

TEST_F(KeyboardFocusTest, TheNewFieldMayEndInTheOldOnesNotification) {
    first.SetFocus();
    parent.log.clear();
    parent.onNotification = [this](bool) { second.DestroyWindow(); };
    second.SetFocus();
    EXPECT_EQ(parent.log, (Log{"10001 lost, focus 10002"}));
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

namespace {

/// The words for the focus messages that windows got, in the order in which they came.
class FocusLog {
public:
    void listenTo(TestWindow& window, const std::string& name) {
        window.onMessage = [this, name](UINT message) {
            if (message == WM_SETFOCUS || message == WM_KILLFOCUS)
                m_log.push_back(name + (message == WM_SETFOCUS ? " got" : " lost"));
        };
    }
    Log take() { return std::exchange(m_log, {}); }

private:
    Log m_log;
};

}  // namespace

class FocusMessagesTest : public KeyboardFocusTest {
protected:
    void SetUp() override {
        KeyboardFocusTest::SetUp();
        ASSERT_TRUE(make(a, &parent, 4));
        ASSERT_TRUE(make(b, &parent, 5));
        ASSERT_TRUE(make(c, &parent, 6));
        log.listenTo(a, "a");
        log.listenTo(b, "b");
        log.listenTo(c, "c");
    }

    FocusLog log;
    TestWindow a;
    TestWindow b;
    TestWindow c;
};

TEST_F(FocusMessagesTest, TheOldWindowIsToldFirstAndBothKnowTheOther) {
    a.SetFocus();
    b.SetFocus();
    EXPECT_EQ(log.take(), (Log{"a got", "a lost", "b got"}));
    EXPECT_EQ(a.got.back(), (Got{WM_KILLFOCUS, reinterpret_cast<WPARAM>(b.m_hWnd), 0}));
    EXPECT_EQ(b.got.back(), (Got{WM_SETFOCUS, reinterpret_cast<WPARAM>(a.m_hWnd), 0}));
}

TEST_F(FocusMessagesTest, WindowsAreToldBehindTheParentsOfFields) {
    parent.onNotification = [this](bool) { EXPECT_EQ(log.take(), Log{}); };
    first.SetFocus();
    a.SetFocus();
    EXPECT_EQ(parent.log, (Log{"10001 got, focus 10001", "10001 lost, focus 4"}));
    EXPECT_EQ(log.take(), (Log{"a got"}));
}

TEST_F(FocusMessagesTest, AWindowThatWasPassedOverIsToldNothing) {
    a.SetFocus();
    log.take();
    a.onMessage = [this, told = a.onMessage](UINT message) {
        told(message);
        if (message == WM_KILLFOCUS)
            c.SetFocus();
    };
    b.SetFocus();
    EXPECT_EQ(log.take(), (Log{"a lost", "c got"}));
    EXPECT_EQ(CWnd::GetFocus(), &c);
}

TEST_F(FocusMessagesTest, AHiddenWindowLosesTheFocusToNone) {
    a.SetFocus();
    a.ShowWindow(SW_HIDE);
    EXPECT_EQ(log.take(), (Log{"a got", "a lost"}));
    EXPECT_EQ(a.got.back().wParam, 0U);
}

TEST_F(FocusMessagesTest, AWindowMayEndWhenItLosesTheFocus) {
    a.SetFocus();
    a.onMessage = [this](UINT message) {
        if (message == WM_KILLFOCUS)
            a.DestroyWindow();
    };
    b.SetFocus();
    EXPECT_EQ(log.take(), (Log{"a got", "b got"}));
}

}  // namespace workbench
