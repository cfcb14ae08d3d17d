#include "workbench/base/turn.h"
#include "workbench/windows/message_words.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <cstdint>

namespace workbench {

/// A message in the hands of one of an object's handlers.
struct WindowSystem::Dispatch {
    /// Whose turn it is.
    enum class Step { Table, Command, Widget };

    CWnd* object;  // null once the object has ended
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    Step step = Step::Table;
    const MessageMap* map = nullptr;  // the table whose handler runs, for the step Table
};

/// The time during which a handler runs.
class WindowSystem::Running {
public:
    Running(WindowSystem& windows, Dispatch& dispatch) : m_windows(windows) {
        m_windows.m_dispatches.push_back(&dispatch);
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() { m_windows.m_dispatches.pop_back(); }

private:
    WindowSystem& m_windows;
};

namespace {

/// Stands in for an object that ends while its window is on its way out.
CWnd& nobody() {
    static CWnd s_nobody;
    return s_nobody;
}

const MessageMap* baseOf(const MessageMap& map) {
    return map.base == nullptr ? nullptr : &map.base();
}

/// The row of a message; for `WM_COMMAND` the one whose range holds the command.
const MessageEntry* findRow(const MessageMap& map, UINT message, WPARAM wParam, LPARAM lParam) {
    const MessageEntry* const end = map.entries + map.count;
    const MessageEntry* row = std::lower_bound(
        map.entries, end, message,
        [](const MessageEntry& entry, UINT number) { return entry.message < number; });
    if (message != WM_COMMAND)
        return row != end && row->message == message ? row : nullptr;
    if (lParam != 0)
        return nullptr;
    const UINT command = LOWORD(wParam);
    for (; row != end && row->message == message; ++row) {
        if (command >= row->firstCommand && command <= row->lastCommand)
            return row;
    }
    return nullptr;
}

}  // namespace

LRESULT WindowSystem::send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const Window* const found = find(window);
    if (found == nullptr)
        return 0;
    const Turn turn;
    if (m_journal.isRecording())
        noteMessage(*found, message, wParam, lParam);
    return found->object->WindowProc(message, wParam, lParam);
}

LRESULT WindowSystem::dispatch(CWnd& object, UINT message, WPARAM wParam, LPARAM lParam) {
    Dispatch dispatch{&object, object.m_hWnd, message, wParam, lParam};
    if (message != WM_COMMAND)
        return runTables(object, dispatch, &object.GetMessageMap());
    dispatch.step = Dispatch::Step::Command;
    {
        const Running running(*this, dispatch);
        if (object.OnCommand(wParam, lParam) != 0)
            return 1;
    }
    return runWidget(dispatch);
}

LRESULT WindowSystem::dispatchToBase(CWnd& object) {
    const auto running =
        std::find_if(m_dispatches.rbegin(), m_dispatches.rend(),
                     [&object](const Dispatch* dispatch) { return dispatch->object == &object; });
    if (running == m_dispatches.rend())
        return 0;
    const Dispatch& dispatch = **running;
    switch (dispatch.step) {
    case Dispatch::Step::Table:
        return runTables(object, dispatch, baseOf(*dispatch.map));
    case Dispatch::Step::Command:
        return runWidget(dispatch);
    case Dispatch::Step::Widget:
        break;
    }
    return handleCommonly(dispatch);
}

bool WindowSystem::dispatchCommand(CWnd& object, WPARAM wParam, LPARAM lParam) {
    for (const MessageMap* map = &object.GetMessageMap(); map != nullptr; map = baseOf(*map)) {
        const MessageEntry* const row = findRow(*map, WM_COMMAND, wParam, lParam);
        if (row == nullptr)
            continue;
        Dispatch dispatch{&object, object.m_hWnd,         WM_COMMAND, wParam,
                          lParam,  Dispatch::Step::Table, map};
        const Running running(*this, dispatch);
        row->handler(&object, wParam, lParam);
        return true;
    }
    return false;
}

LRESULT WindowSystem::runTables(CWnd& object, Dispatch dispatch, const MessageMap* map) {
    dispatch.step = Dispatch::Step::Table;
    for (; map != nullptr; map = baseOf(*map)) {
        const MessageEntry* const row =
            findRow(*map, dispatch.message, dispatch.wParam, dispatch.lParam);
        if (row == nullptr)
            continue;
        dispatch.map = map;
        const Running running(*this, dispatch);
        return row->handler(&object, dispatch.wParam, dispatch.lParam);
    }
    return runWidget(dispatch);
}

LRESULT WindowSystem::runWidget(Dispatch dispatch) {
    Window* const window = find(dispatch.window);
    if (window != nullptr && window->widget != nullptr) {
        dispatch.step = Dispatch::Step::Widget;
        const Running running(*this, dispatch);
        LRESULT answer = 0;
        if (window->widget->handle(*window, dispatch.message, dispatch.wParam, dispatch.lParam,
                                   answer))
            return answer;
    }
    return handleCommonly(dispatch);
}

LRESULT WindowSystem::handleCommonly(const Dispatch& dispatch) {
    Window* const window = find(dispatch.window);
    if (window != nullptr && dispatch.message == WM_SETFONT) {
        window->font = dispatch.wParam;
        if (dispatch.lParam != 0)
            invalidate(dispatch.window);
    }
    return 0;
}

void WindowSystem::objectEnds(CWnd& object) {
    destroy(object.m_hWnd);
    if (Window* const onItsWayOut = find(object.m_hWnd)) {
        onItsWayOut->object = &nobody();
        Turn::keep(std::move(onItsWayOut->widget));
    }
    for (Dispatch* dispatch : m_dispatches) {
        if (dispatch->object == &object)
            dispatch->object = nullptr;
    }
}

void WindowSystem::noteMessage(const Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (window.name.empty())
        return;
    m_journal.add("message", {{"control", window.name},
                              {"number", static_cast<std::int64_t>(message)},
                              {"wparam", static_cast<std::int64_t>(wParam)},
                              {"lparam", shownLParam(message, lParam)}});
}

}  // namespace workbench
