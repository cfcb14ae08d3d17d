#pragma once

#include "workbench/windows/keyboard_focus.h"
#include "workbench/windows/message_dispatcher.h"
#include "workbench/windows/window_tree.h"

#include <hostapi/window.h>

#include <deque>

namespace workbench {

/// What waits to be sent to windows, and the road of the user's input to them.
class MessageQueue {
public:
    MessageQueue(const WindowTree& tree, MessageDispatcher& messages, const KeyboardFocus& focus)
        : m_tree(tree),
          m_messages(messages),
          m_focus(focus) {}
    MessageQueue(const MessageQueue&) = delete;
    MessageQueue& operator=(const MessageQueue&) = delete;

    /// Queues a message; false if the window is stale.
    bool post(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Whether messages are queued.
    bool hasPosted() const { return !m_posted.empty(); }
    /// Sends the queued messages, those queued meanwhile too, until none is left. Throws
    /// std::runtime_error if that takes more than `kMostPostedMessages`.
    void runPosted();
    /// An input message on its road from the queue: `PreTranslateMessage` from the window (null: the
    /// focused one) upwards, then, unless consumed, a send.
    void input(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    /// More messages than this in one run mean that a window answers its own message without end.
    static constexpr int kMostPostedMessages = 100000;

private:
    struct Posted {
        HWND window;
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };

    void sendPosted(const Posted& posted);
    bool preTranslate(MSG& message);

    const WindowTree& m_tree;
    MessageDispatcher& m_messages;
    const KeyboardFocus& m_focus;
    std::deque<Posted> m_posted;  // oldest first; windows may have gone
};

}  // namespace workbench
