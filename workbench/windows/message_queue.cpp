#include "workbench/windows/message_queue.h"

#include "workbench/base/turn.h"

#include <stdexcept>
#include <string>

namespace workbench {

bool MessageQueue::post(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_tree.find(window) == nullptr)
        return false;
    m_posted.push_back({window, message, wParam, lParam});
    return true;
}

void MessageQueue::runPosted() {
    for (int run = 0; !m_posted.empty(); ++run) {
        const Posted next = m_posted.front();
        m_posted.pop_front();
        const Window* const window = m_tree.find(next.window);
        if (window == nullptr)
            continue;
        if (run >= kMostPostedMessages)
            throw std::runtime_error("posted messages do not end: message " +
                                     std::to_string(next.message) + " to " + window->className +
                                     " \"" + m_tree.ownerName(next.window) + "\"");
        sendPosted(next);
    }
}

void MessageQueue::sendPosted(const Posted& posted) {
    m_messages.deliver(posted.window, [this, &posted] {
        m_messages.send(posted.window, posted.message, posted.wParam, posted.lParam);
    });
}

void MessageQueue::input(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG record{window == nullptr ? m_focus.window() : window, message, wParam, lParam};
    m_messages.deliver(record.hwnd, [this, &record] {
        if (!preTranslate(record))
            m_messages.send(record.hwnd, record.message, record.wParam, record.lParam);
    });
}

bool MessageQueue::preTranslate(MSG& message) {
    const Turn turn;
    HWND next = message.hwnd;
    while (const Window* const window = m_tree.find(next)) {
        next = window->parent;
        if (window->object->PreTranslateMessage(&message) != 0)
            return true;
    }
    return false;
}

}  // namespace workbench
