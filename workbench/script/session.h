#pragma once

#include "workbench/host/workbench.h"

#include <string>
#include <vector>

namespace workbench::script {

/// What the calls of one script share: the workbench, and what it has handed out already.
class Session {
public:
    explicit Session(Workbench& workbench);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() = default;

    Workbench& workbench() { return m_workbench; }
    /// What the gestures of the script go to.
    Toolkit& toolkit() { return m_workbench.toolkit(); }

    /// Lets run what a gesture has set going: posted messages, and command text unless a command is
    /// running in the current document. Text that is queued behind a running command, the cancel
    /// characters too, waits for the host's next turn.
    void settle();
    /// The host's next turn: posted messages and all command text.
    void runHost();
    /// Opens "Drawing1" if there has been no document so far: a host starts with one.
    void needDocument();
    /// The script makes its documents itself.
    void noteDocumentMade() { m_documentsMade = true; }
    /// Notes in the journal what the script does.
    void noteGesture(const std::string& words);
    /// The command texts sent since the last call, oldest first.
    std::vector<JournalRecord> takeSent();

    /// A listener of the script has failed, inside the dashboard's own work, through which its error
    /// can't travel: the call that made it run reports it. The first one stays.
    void noteListenerError(const std::string& text);
    /// The listener's error since the last call; empty for none.
    std::string takeListenerError();

private:
    bool isCommandRunning() const;

    Workbench& m_workbench;
    bool m_documentsMade = false;
    std::vector<JournalRecord> m_sent;
    std::string m_listenerError;  // empty: none
    Journal::Listening m_listening;
};

}  // namespace workbench::script
