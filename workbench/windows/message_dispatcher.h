#pragma once

#include "workbench/core/invalid_argument.h"
#include "workbench/core/journal.h"
#include "workbench/windows/message_rows.h"
#include "workbench/windows/window_changes.h"
#include "workbench/windows/window_tree.h"

#include <hostapi/window.h>

namespace workbench {

/// Brings messages to their windows' handlers. Those of named windows are noted in the journal (kind
/// "message").
///
/// A handler may end any window and any object, its own too: neither is touched behind a handler
/// unless its handle is found anew.
class MessageDispatcher {
public:
    MessageDispatcher(WindowTree& tree, WindowChanges& changes, Journal& journal)
        : m_tree(tree),
          m_changes(changes),
          m_journal(journal) {}
    MessageDispatcher(const MessageDispatcher&) = delete;
    MessageDispatcher& operator=(const MessageDispatcher&) = delete;

    /// Sends a message through the object's `WindowProc` and returns the answer; 0 if stale.
    /// Allocates nothing while the journal doesn't record.
    LRESULT send(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Runs what the host delivers to a window by itself. A failure of the invalid-argument kind
    /// ends it with a box, which is noted in the journal.
    template <class Delivery>
    void deliver(HWND window, Delivery delivery) {
        try {
            delivery();
        } catch (const InvalidArgument& failure) {
            noteFailure(window, failure);
        }
    }

    /// What `CWnd::WindowProc` does: the object's message table, then the widget, then the common
    /// handling. `WM_COMMAND` goes to the object's `OnCommand` in place of the table and, unless
    /// that answers non-zero, on to the widget. What a control tells its parent by `WM_COMMAND` or
    /// `WM_NOTIFY` goes back to the control alone, if its table has a row for that.
    LRESULT dispatch(CWnd& object, UINT message, WPARAM wParam, LPARAM lParam);
    /// What `CWnd::Default` does: goes on with the message that the object's innermost running
    /// handler is handling, behind the table in which that handler stands.
    LRESULT dispatchToBase(CWnd& object);
    /// What `CWnd::OnCommand` does: runs the handler of a command of a menu or key (a `wParam`
    /// without a control in `lParam`), if the object's table has one.
    bool dispatchCommand(CWnd& object, WPARAM wParam, LPARAM lParam);

    /// The window whose handler runs, the innermost one; null for none.
    HWND handling() const;
    /// A window object ends: the handlers of it that are running are not continued.
    void objectEnds(const CWnd& object);
    /// A window is gone, and with it perhaps the last of its class.
    void windowEnded() { m_rows.forget(); }

private:
    struct Dispatch;
    class Running;

    HWND reflectsTo(UINT message, LPARAM lParam);
    LRESULT runTables(Dispatch& dispatch, const MessageMap* map);
    FoundRow findRow(const Dispatch& dispatch, const MessageMap* map);
    FoundRow findRowOfMessage(const Dispatch& dispatch, const MessageMap& map);
    LRESULT runRow(Dispatch& dispatch, const FoundRow& found);
    LRESULT runWidget(Dispatch& dispatch);
    LRESULT handleCommonly(const Dispatch& dispatch);
    void noteMessage(const Window& window, UINT message, WPARAM wParam, LPARAM lParam);
    void noteFailure(HWND window, const InvalidArgument& failure);

    WindowTree& m_tree;
    WindowChanges& m_changes;
    Journal& m_journal;
    Dispatch* m_innermost = nullptr;  // not owned; null: no handler runs
    MessageRows m_rows;
};

}  // namespace workbench
