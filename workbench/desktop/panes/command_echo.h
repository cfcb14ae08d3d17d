#pragma once

#include "workbench/core/journal.h"

#include <QString>
#include <functional>

namespace workbench::desktop {

/// Says at the command line what the journal tells of commands: the text that a tool or a control
/// sent, and in one line what was wrong with a command.
class CommandEcho {
public:
    /// `say` is handed each line; it must not drive the workbench.
    CommandEcho(Journal& journal, std::function<void(const QString&)> say);
    CommandEcho(const CommandEcho&) = delete;
    CommandEcho& operator=(const CommandEcho&) = delete;
    ~CommandEcho() = default;

private:
    void note(const JournalRecord& record);
    void noteEvent(const QString& event, const QString& text);

    std::function<void(const QString&)> m_say;
    bool m_hasSaid = false;  // since a command was started; then its failure needs no more words
    Journal::Listening m_listening;
};

}  // namespace workbench::desktop
