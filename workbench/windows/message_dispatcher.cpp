#include "workbench/windows/message_dispatcher.h"

#include "workbench/base/turn.h"
#include "workbench/windows/message_words.h"
#include "workbench/windows/window_parts.h"

#include <cstdint>
#include <utility>

namespace workbench {

/// A message in the hands of one of an object's handlers.
struct MessageDispatcher::Dispatch {
    /// Whose turn it is.
    enum class Step { Table, Command, Widget };

    CWnd* object;  // null once the object has ended
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    Step step = Step::Table;
    const MessageMap* map = nullptr;  // the table whose handler runs, for the step Table
    Dispatch* outer = nullptr;        // in whose handler this one was begun; null: in none
};

/// The time during which a handler runs.
class MessageDispatcher::Running {
public:
    Running(MessageDispatcher& dispatcher, Dispatch& dispatch) : m_dispatcher(dispatcher) {
        dispatch.outer = std::exchange(m_dispatcher.m_innermost, &dispatch);
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() { m_dispatcher.m_innermost = m_dispatcher.m_innermost->outer; }

private:
    MessageDispatcher& m_dispatcher;
};

/// The row for a message that is no command, from a table on.
inline FoundRow MessageDispatcher::findRowOfMessage(const Dispatch& dispatch,
                                                    const MessageMap& map) {
    // A module's windows and objects end before it is unloaded, and what was found for them is
    // forgotten then. Nothing is remembered for an object whose window is gone.
    return dispatch.object->m_hWnd == nullptr ? MessageRows::search(map, dispatch.message)
                                              : m_rows.find(map, dispatch.message);
}

// The steps of each message stand first, so that they can be inlined.

inline LRESULT MessageDispatcher::runRow(Dispatch& dispatch, const FoundRow& found) {
    dispatch.step = Dispatch::Step::Table;
    dispatch.map = found.holder;
    const Running running(*this, dispatch);
    return found.row->handler(dispatch.object, dispatch.wParam, dispatch.lParam);
}

inline LRESULT MessageDispatcher::handleCommonly(const Dispatch& dispatch) {
    if (dispatch.message != WM_SETFONT)
        return 0;
    Window* const window = m_tree.find(dispatch.window);
    if (window == nullptr)
        return 0;
    window->font = dispatch.wParam;
    if (dispatch.lParam != 0)
        m_changes.invalidate(dispatch.window);
    return 0;
}

inline LRESULT MessageDispatcher::runWidget(Dispatch& dispatch) {
    Window* const window = m_tree.find(dispatch.window);
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

LRESULT MessageDispatcher::send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const Window* const found = m_tree.find(window);
    if (found == nullptr)
        return 0;
    const Turn turn;
    if (m_journal.isRecording())
        noteMessage(*found, message, wParam, lParam);
    return found->object->WindowProc(message, wParam, lParam);
}

LRESULT MessageDispatcher::dispatch(CWnd& object, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND || message == WM_NOTIFY) {
        if (const HWND control = reflectsTo(message, lParam)) {
            const LRESULT answer = send(control, WM_REFLECT_BASE + message, wParam, lParam);
            return message == WM_COMMAND ? 1 : answer;
        }
    }
    Dispatch dispatch{&object, object.m_hWnd, message, wParam, lParam};
    if (message != WM_COMMAND) {
        const FoundRow found = findRowOfMessage(dispatch, object.GetMessageMap());
        return found.row == nullptr ? runWidget(dispatch) : runRow(dispatch, found);
    }
    dispatch.step = Dispatch::Step::Command;
    {
        const Running running(*this, dispatch);
        if (object.OnCommand(wParam, lParam) != 0)
            return 1;
    }
    return runWidget(dispatch);
}

/// The control that sent a notification, if it takes it itself; null otherwise.
HWND MessageDispatcher::reflectsTo(UINT message, LPARAM lParam) {
    if (lParam == 0)
        return nullptr;
    const HWND control = message == WM_COMMAND ? reinterpret_cast<HWND>(lParam)
                                               : reinterpret_cast<const NMHDR*>(lParam)->hwndFrom;
    const Window* const window = m_tree.find(control);
    if (window == nullptr)
        return nullptr;
    const FoundRow found = m_rows.find(window->object->GetMessageMap(), WM_REFLECT_BASE + message);
    return found.row == nullptr ? nullptr : control;
}

HWND MessageDispatcher::handling() const {
    return m_innermost == nullptr ? nullptr : m_innermost->window;
}

LRESULT MessageDispatcher::dispatchToBase(CWnd& object) {
    const Dispatch* running = m_innermost;
    while (running != nullptr && running->object != &object)
        running = running->outer;
    if (running == nullptr)
        return 0;
    Dispatch dispatch = *running;
    switch (dispatch.step) {
    case Dispatch::Step::Table:
        return runTables(dispatch, baseOf(*dispatch.map));
    case Dispatch::Step::Command:
        return runWidget(dispatch);
    case Dispatch::Step::Widget:
        break;
    }
    return handleCommonly(dispatch);
}

bool MessageDispatcher::dispatchCommand(CWnd& object, WPARAM wParam, LPARAM lParam) {
    Dispatch dispatch{&object, object.m_hWnd, WM_COMMAND, wParam, lParam};
    const FoundRow found = findRow(dispatch, &object.GetMessageMap());
    if (found.row == nullptr)
        return false;
    runRow(dispatch, found);
    return true;
}

LRESULT MessageDispatcher::runTables(Dispatch& dispatch, const MessageMap* map) {
    const FoundRow found = findRow(dispatch, map);
    return found.row == nullptr ? runWidget(dispatch) : runRow(dispatch, found);
}

/// The row for a message, from a table on; none without a table.
FoundRow MessageDispatcher::findRow(const Dispatch& dispatch, const MessageMap* map) {
    if (map == nullptr)
        return {};
    if (dispatch.message == WM_COMMAND)
        return dispatch.lParam != 0 ? FoundRow{}
                                    : MessageRows::searchCommand(*map, LOWORD(dispatch.wParam));
    return findRowOfMessage(dispatch, *map);
}

void MessageDispatcher::objectEnds(const CWnd& object) {
    m_rows.forget();
    for (Dispatch* dispatch = m_innermost; dispatch != nullptr; dispatch = dispatch->outer) {
        if (dispatch->object == &object)
            dispatch->object = nullptr;
    }
}

void MessageDispatcher::noteMessage(const Window& window, UINT message, WPARAM wParam,
                                    LPARAM lParam) {
    std::string name = journalName(m_tree, window);
    if (name.empty())
        return;
    m_journal.add("message", {{"control", std::move(name)},
                              {"number", static_cast<std::int64_t>(message)},
                              {"wparam", static_cast<std::int64_t>(wParam)},
                              {"lparam", shownLParam(message, lParam)}});
}

void MessageDispatcher::noteFailure(HWND window, const InvalidArgument& failure) {
    m_journal.add(
        "box",
        {{"text", failure.what()}, {"string", Value()}, {"owner", m_tree.ownerName(window)}});
}

}  // namespace workbench
