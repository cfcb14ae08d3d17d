#include "workbench/toolkit/message_boxes.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/core/invalid_argument.h"

#include <hostapi/window/module.h>

namespace workbench {
namespace {

class MessageBoxesTest : public ToolkitTest {
protected:
    int show() { return AfxMessageBox(L"Really?", MB_OK | MB_ICONSTOP); }
};

TEST_F(MessageBoxesTest, WithoutAnAnswerItIsOk) {
    EXPECT_EQ(show(), 1);
    const std::vector<JournalRecord> boxes = journal().take("box");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].field("text"), Value("Really?"));
    EXPECT_TRUE(boxes[0].field("owner").isNil());
}

TEST_F(MessageBoxesTest, QueuedAnswersComeInTheirOrder) {
    for (const char* answer : {"ok", "cancel", "yes", "no"})
        m_workbench.answers().queue("box", answer);
    EXPECT_EQ(show(), 1);
    EXPECT_EQ(show(), 2);
    EXPECT_EQ(show(), 6);
    EXPECT_EQ(show(), 7);
    EXPECT_EQ(show(), 1);
}

TEST_F(MessageBoxesTest, AnUnknownAnswerIsAnError) {
    m_workbench.answers().queue("box", "perhaps");
    EXPECT_THROW(show(), std::invalid_argument);
}

TEST_F(MessageBoxesTest, WhoeverShowsBoxesAnswersAfterTheQueue) {
    toolkit().boxes().setPresenter([](const std::wstring&, UINT) { return MessageBoxes::kNo; });
    m_workbench.answers().queue("box", "yes");
    EXPECT_EQ(show(), 6);
    EXPECT_EQ(show(), 7);
}

TEST_F(MessageBoxesTest, ABoxBelongsToTheControlWithTheFocus) {
    windows().setName(m_toolPanel->m_hWnd, "Fade");
    m_toolPanel->SetFocus();
    show();
    EXPECT_EQ(journal().take("box").at(0).field("owner"), Value("Fade"));
}

TEST_F(MessageBoxesTest, ItCanBeToldToFail) {
    m_workbench.faults().fail("AfxMessageBox");
    EXPECT_EQ(show(), 0);
    EXPECT_TRUE(journal().take("box").empty());
}

TEST_F(MessageBoxesTest, TheInvalidArgumentFailureIsRaised) {
    EXPECT_THROW(AfxThrowInvalidArgException(), InvalidArgument);
}

}  // namespace
}  // namespace workbench
