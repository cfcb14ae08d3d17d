#include "tests/workbench/windows/window_fixture.h"
#include "workbench/core/invalid_argument.h"

#include <stdexcept>

namespace workbench {

namespace {

constexpr UINT kPosted = 3001;
constexpr UINT kSecond = 3002;

class MessageQueueTest : public WindowTest {};

}  // namespace

TEST_F(MessageQueueTest, APostedMessageWaitsForTheQueue) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    EXPECT_TRUE(window.PostMessage(kPosted, 1, 2));
    EXPECT_EQ(window.count(kPosted), 0);
    windows().queue().runPosted();
    EXPECT_EQ(window.got.back(), (Got{kPosted, 1, 2}));
    windows().queue().runPosted();
    EXPECT_EQ(window.count(kPosted), 1);
}

TEST_F(MessageQueueTest, MessagesPostedMeanwhileRunToo) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    window.onMessage = [&](UINT message) {
        if (message == kPosted)
            window.PostMessage(kSecond);
    };
    window.PostMessage(kPosted);
    windows().queue().runPosted();
    EXPECT_EQ(window.count(kSecond), 1);
}

TEST_F(MessageQueueTest, APostedMessageIsDroppedWithItsWindow) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    window.PostMessage(kPosted);
    window.DestroyWindow();
    windows().queue().runPosted();
    EXPECT_EQ(window.count(kPosted), 0);
    EXPECT_FALSE(window.PostMessage(kPosted));
}

TEST_F(MessageQueueTest, AMessageThatPostsItselfWithoutEndIsNamed) {
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
        windows().queue().runPosted();
        FAIL() << "it ended";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "posted messages do not end: message 3001 to Test \"Restless\"");
    }
}

TEST_F(MessageQueueTest, InputIsShownToTheWindowAndThenToItsParents) {
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

TEST_F(MessageQueueTest, AConsumedInputIsNotSent) {
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

TEST_F(MessageQueueTest, InputWithoutAWindowGoesToTheFocus) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    windows().input(nullptr, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(window.count(WM_KEYDOWN), 0);
    window.SetFocus();
    windows().input(nullptr, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(window.count(WM_KEYDOWN), 1);
}

TEST_F(MessageQueueTest, AWindowMayEndWhileItLooksAtAnInput) {
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

TEST_F(MessageQueueTest, AnInvalidArgumentEndsOneMessageWithABox) {
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

TEST_F(MessageQueueTest, AnotherFailureIsLeftToTheCaller) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    window.onMessage = [](UINT message) {
        if (message == kPosted)
            throw std::logic_error("a fault of the test");
    };
    window.PostMessage(kPosted);
    EXPECT_THROW(windows().queue().runPosted(), std::logic_error);
}

}  // namespace workbench
