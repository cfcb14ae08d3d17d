#pragma once

#include <hostapi/types.h>

#include <cstddef>

class CWnd;

/// One row of a window class's message table: a message, or for `WM_COMMAND` without a control a
/// range of command IDs, and the handler.
struct MessageEntry {
    using Thunk = LRESULT (*)(CWnd* window, WPARAM wParam, LPARAM lParam);

    UINT message;
    Thunk handler;
    UINT firstCommand = 0;  ///< Only for `WM_COMMAND`: the first ID of the range.
    UINT lastCommand = 0;   ///< Only for `WM_COMMAND`: the last ID, inclusive.
};

/// The message table of a window class, chained to its base's. The framework searches it before
/// its own handling of a message; rows of `WM_COMMAND` are searched by `CWnd::OnCommand`.
struct MessageMap {
    const MessageMap& (*base)();  ///< The base class's table; null ends the chain.
    const MessageEntry* entries;  ///< Static, ascending by message, then by first command.
    std::size_t count;
};

namespace hostapi {

template <class Member>
struct HandlerOf;
template <class Window>
struct HandlerOf<LRESULT (Window::*)(WPARAM, LPARAM)> {
    using WindowClass = Window;
};

/// Whether a table's rows are ascending and none stands twice.
template <std::size_t Count>
constexpr bool isAscendingAndUnique(const MessageEntry (&entries)[Count]) {
    for (std::size_t i = 1; i < Count; ++i) {
        const MessageEntry& before = entries[i - 1];
        const MessageEntry& here = entries[i];
        if (before.message > here.message)
            return false;
        if (before.message == here.message && before.lastCommand >= here.firstCommand)
            return false;
    }
    return true;
}

}  // namespace hostapi

/// The thunk of a handler `LRESULT Class::handler(WPARAM, LPARAM)`, made from the member pointer.
template <auto Handler>
LRESULT to(CWnd* window, WPARAM wParam, LPARAM lParam) {
    using Window = typename hostapi::HandlerOf<decltype(Handler)>::WindowClass;
    return (static_cast<Window*>(window)->*Handler)(wParam, lParam);
}
