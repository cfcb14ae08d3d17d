#include "workbench/toolkit/balloon_tips.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

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
