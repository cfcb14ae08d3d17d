#include "workbench/toolkit/balloon_tips.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/key_gestures.h"

namespace workbench {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class BalloonTipsTest : public ToolkitTest {
protected:
    BalloonTipsTest() {
        m_edit.Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 20}, m_toolPanel, 1, 0);
        windows().setName(m_toolPanel->m_hWnd, "Fade");
        journal().take();
    }
    CQrUiInputEditCtrl m_edit;
};

TEST_F(BalloonTipsTest, ABalloonIsNotedWithItsOwner) {
    QrUiShowBalloonTip(m_toolPanel, &m_edit, L"Enter 0 to 90", 0);
    EXPECT_EQ(toolkit().balloons().textOf(m_toolPanel->m_hWnd), L"Enter 0 to 90");
    EXPECT_EQ(toolkit().balloons().targetOf(m_toolPanel->m_hWnd), m_edit.m_hWnd);
    const std::vector<JournalRecord> balloons = journal().take("balloon");
    ASSERT_THAT(balloons, SizeIs(1));
    EXPECT_EQ(balloons[0].field("text"), Value("Enter 0 to 90"));
    EXPECT_EQ(balloons[0].field("owner"), Value("Fade"));
    EXPECT_TRUE(balloons[0].field("string").isNil());
}

TEST_F(BalloonTipsTest, ASecondBalloonTakesThePlaceOfTheFirst) {
    QrUiShowBalloonTip(m_toolPanel, &m_edit, L"one", 0);
    QrUiShowBalloonTip(m_toolPanel, &m_edit, L"two", 0);
    EXPECT_EQ(toolkit().balloons().textOf(m_toolPanel->m_hWnd), L"two");
    QrUiHideBalloonTip(m_toolPanel);
    QrUiHideBalloonTip(m_toolPanel);
    EXPECT_EQ(toolkit().balloons().textOf(m_toolPanel->m_hWnd), L"");
    const std::vector<JournalRecord> changes = journal().take("control");
    ASSERT_THAT(changes, SizeIs(3));
    EXPECT_EQ(changes[2].field("field"), Value("balloon"));
    EXPECT_EQ(changes[2].field("old"), Value("two"));
    EXPECT_EQ(changes[2].field("new"), Value(""));
}

TEST_F(BalloonTipsTest, ThereIsOneAtATime) {
    QrUiShowBalloonTip(m_toolPanel, &m_edit, L"one", 0);
    QrUiShowBalloonTip(&m_edit, &m_edit, L"two", 0);
    EXPECT_EQ(toolkit().balloons().textOf(m_toolPanel->m_hWnd), L"");
    EXPECT_EQ(toolkit().balloons().textOf(m_edit.m_hWnd), L"two");
    QrUiHideBalloonTip(m_toolPanel);
    EXPECT_TRUE(toolkit().balloons().isShown());
}

TEST_F(BalloonTipsTest, ItGoesAfterAWhile) {
    QrUiShowBalloonTip(m_toolPanel, &m_edit, L"one", 0);
    windows().advance(9'999);
    EXPECT_TRUE(toolkit().balloons().isShown());
    windows().advance(1);
    EXPECT_FALSE(toolkit().balloons().isShown());
    QrUiShowBalloonTip(m_toolPanel, &m_edit, L"two", 0);
    windows().advance(6'000);
    QrUiShowBalloonTip(m_toolPanel, &m_edit, L"three", 0);
    windows().advance(6'000);
    EXPECT_EQ(toolkit().balloons().textOf(m_toolPanel->m_hWnd), L"three");
}

TEST_F(BalloonTipsTest, ItGoesWithTheNextKeyOrClick) {
    const auto isGoneAfter = [this](auto gesture) {
        QrUiShowBalloonTip(m_toolPanel, &m_edit, L"one", 0);
        gesture();
        return !toolkit().balloons().isShown();
    };
    EXPECT_TRUE(isGoneAfter([this] { gestures::typeText(toolkit(), L"1"); }));
    EXPECT_TRUE(isGoneAfter([this] { gestures::pressKey(toolkit(), "left"); }));
    EXPECT_TRUE(isGoneAfter([this] { toolkit().mouse().press(m_toolPanel->m_hWnd, {1, 1}); }));
    EXPECT_TRUE(isGoneAfter([this] {
        toolkit().mouse().contextMenu(m_toolPanel->m_hWnd, {1, 1});
    }));
    EXPECT_FALSE(isGoneAfter([this] { toolkit().mouse().move(m_toolPanel->m_hWnd, {1, 1}); }));
}

TEST_F(BalloonTipsTest, ItGoesWithTheKeyboardButNotWhenItsFieldGetsIt) {
    const HWND view = toolkit().frame().drawingView().m_hWnd;
    windows().setFocus(view);
    QrUiShowBalloonTip(m_toolPanel, &m_edit, L"one", 0);
    windows().setFocus(m_edit.m_hWnd);
    EXPECT_TRUE(toolkit().balloons().isShown());
    windows().setFocus(view);
    EXPECT_FALSE(toolkit().balloons().isShown());
}

TEST_F(BalloonTipsTest, ItGoesAtTheNextIdleTickIfItsFieldIsNoLongerOnShow) {
    QrUiShowBalloonTip(m_toolPanel, &m_edit, L"one", 0);
    toolkit().idleUpdate();
    EXPECT_TRUE(toolkit().balloons().isShown());
    m_toolPanel->ShowWindow(0);
    toolkit().idleUpdate();
    EXPECT_FALSE(toolkit().balloons().isShown());
}

TEST_F(BalloonTipsTest, WithoutAnOwnersWindowThereIsNone) {
    CWnd nobody;
    QrUiShowBalloonTip(nullptr, &m_edit, L"x", 0);
    QrUiShowBalloonTip(&nobody, &m_edit, L"x", 0);
    QrUiHideBalloonTip(nullptr);
    EXPECT_THAT(journal().take("balloon"), IsEmpty());
}

TEST_F(BalloonTipsTest, ItCanBeToldToFail) {
    m_workbench.faults().fail("QrUiShowBalloonTip");
    QrUiShowBalloonTip(m_toolPanel, &m_edit, L"x", 0);
    EXPECT_THAT(journal().take("balloon"), IsEmpty());
}

}  // namespace
}  // namespace workbench
