#pragma once

#include "workbench/editor/command.h"
#include "workbench/editor/command_registry.h"
#include "workbench/editor/command_text.h"

#include <hostapi/types.h>

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// The command processor of one document: takes text from the command line, from menus and from
/// modules, runs the commands in it, and tells the editor's and the document's reactors.
///
/// Text that is sent waits until the processor runs (`pump`); so a cancelled command goes on until
/// then. Only `doCommand` runs at once.
class CommandProcessor {
public:
    CommandProcessor(Editor& editor, Document& document);
    CommandProcessor(const CommandProcessor&) = delete;
    CommandProcessor& operator=(const CommandProcessor&) = delete;
    ~CommandProcessor();

    // Text that waits for the next run.

    /// Text sent to the command line. `activate` brings the document to the front when the text's
    /// turn comes; `wrapUpInactive` gives up what runs in it if it is not in front then.
    void sendLine(std::wstring_view text, bool activate, bool wrapUpInactive, bool echo);
    /// A menu macro.
    void sendMacro(std::wstring_view macro, int flag);
    /// Whether text waits.
    bool hasQueued() const { return !m_queue.empty(); }
    /// Runs what waits until nothing is left. Inside a run it does nothing.
    void pump();

    // What runs at once.

    /// Characters of the keyboard: an answer is taken when its end is typed.
    void type(std::wstring_view text);
    /// Runs commands with all their answers. A command that needs more answers goes on waiting.
    /// False if the text names an unknown command or one that fails.
    bool doCommand(std::wstring_view text, int flag);
    /// The same for the editor itself: nothing is noted as sent.
    bool runNow(std::wstring_view text);
    /// Starts a waiting command that does nothing, under a name: with "'" a transparent one.
    void beginScripted(std::wstring_view name);
    /// Ends the innermost command. False if none runs, or for `Waiting`.
    bool finish(CommandState outcome);
    /// The document goes: drops all text and cancels all commands, and never comes to rest again.
    void abandon();

    // Questions.

    bool isActive() const { return !m_running.empty(); }
    /// Whether a command is at work now, and not only waiting for an answer: the question comes from
    /// inside of it.
    bool isAtWork() const;
    /// What CMDACTIVE tells: 0 for none, bit 1 for a command, bit 2 for a transparent one in it.
    int activity() const;
    /// What CMDNAMES tells: the names from the outermost in, with "'" between.
    std::wstring activeNames() const;
    /// Whether the selection that was made before may be used now: in the innermost command, or outside
    /// of all.
    bool mayUsePickSet() const;
    /// What the innermost command asks for; empty for nothing.
    std::wstring prompt() const;
    /// Whether it is a point that the innermost command asks for.
    bool asksForPoint() const;

private:
    struct Run {
        std::shared_ptr<const CommandDefinition> definition;
        std::unique_ptr<Command> command;
        bool transparent = false;
        bool waiting = false;  // for an answer; otherwise it is at work
    };
    struct Queued {
        std::wstring text;
        bool activate = false;
        bool wrapUpInactive = false;
    };
    class Busy;

    CommandScope scope() { return {m_editor, m_document}; }
    bool isWaiting() const { return !m_running.empty() && m_running.back().waiting; }
    void runQueued(const Queued& queued);
    /// Takes answers and cancels from a text while it has some; false if something went wrong.
    bool consume(CommandText& text, bool takeRest);
    bool takeAnswer(const std::wstring& answer);
    /// Starts the command or asks for the variable of a name; false if there is none or it fails.
    bool startNamed(const std::wstring& entered, bool inside);
    bool start(std::shared_ptr<const CommandDefinition> definition, bool transparent);
    bool feed(std::wstring_view answer);
    /// Locks the document for a command; false if another's lock is in the way.
    bool lockFor(const Command& command);
    /// Has a run's command do a step of its work; one that throws has failed.
    template <class Work>
    bool work(std::size_t run, Work step);
    /// Goes on with what a run answered; false if it failed.
    bool settle(std::size_t run, CommandState state);
    void end(std::size_t run, CommandState outcome);
    void cancelInnermost();
    void cancelWaiting();
    /// Ends the innermost run, which waits, from outside.
    void stopInnermost(CommandState outcome);
    void leaveRest();
    /// Begins the quiescent state if this is the outermost run and no command is left.
    void comeToRest();

    void noteSent(std::wstring_view text, const char* way, int flag);
    void noteEvent(std::wstring_view text, const char* event);

    Editor& m_editor;
    Document& m_document;
    std::deque<Queued> m_queue;
    CommandText m_typed;         // the line as far as it is typed
    std::vector<Run> m_running;  // the innermost last
    std::size_t m_outer = 0;     // runs that the present text must not answer: those around do_cmd
    int m_busy = 0;              // nested runs of the processor
    bool m_resting = true;       // the quiescent state was begun
    bool m_tellingRest = false;  // inside the quiescent event
    bool m_abandoned = false;
};

}  // namespace workbench
