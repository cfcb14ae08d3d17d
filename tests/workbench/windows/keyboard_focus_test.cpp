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

}  // namespace workbench
