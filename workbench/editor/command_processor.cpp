#include "workbench/editor/command_processor.h"

#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/core/journal.h"
#include "workbench/editor/document.h"
#include "workbench/editor/document_list.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/scripted_command.h"
#include "workbench/editor/system_variables.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

namespace workbench {

namespace {

struct Outcome {
    const char* event;
    void (EditorReactors::*tell)(const wchar_t*);
};

Outcome outcomeOf(CommandState state) {
    switch (state) {
    case CommandState::Cancelled:
        return {"cancelled", &EditorReactors::commandCancelled};
    case CommandState::Failed:
        return {"failed", &EditorReactors::commandFailed};
    case CommandState::Waiting:
    case CommandState::Ended:
        break;
    }
    return {"ended", &EditorReactors::commandEnded};
}

/// Gives a place another value for the length of a scope.
template <class Type>
class Replaced {
public:
    Replaced(Type& place, Type value) : m_place(place), m_before(std::exchange(place, value)) {}
    ~Replaced() { m_place = m_before; }
    Replaced(const Replaced&) = delete;
    Replaced& operator=(const Replaced&) = delete;

private:
    Type& m_place;
    Type m_before;
};

constexpr int kActivityCommand = 1;
constexpr int kActivityTransparent = 2;

constexpr int kMostRuns = 10000;  // of one pump: what sends itself again and again is stopped

constexpr int kFlagActivate = 1;
constexpr int kFlagWrapUp = 2;
constexpr int kFlagEcho = 4;

}  // namespace

/// A run of the processor: the document is the current one meanwhile.
class CommandProcessor::Busy {
public:
    explicit Busy(CommandProcessor& processor)
        : m_processor(processor),
          m_current(processor.m_editor.documents(), processor.m_document) {
        ++m_processor.m_busy;
    }
    ~Busy() { --m_processor.m_busy; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    Turn m_turn;  // the processor lives to its end, though its document be closed
    CommandProcessor& m_processor;
    CurrentDocument m_current;
};

CommandProcessor::CommandProcessor(Editor& editor, Document& document)
    : m_editor(editor),
      m_document(document) {}

CommandProcessor::~CommandProcessor() = default;

void CommandProcessor::sendLine(std::wstring_view text, bool activate, bool wrapUpInactive,
                                bool echo) {
    noteSent(text, isCancelText(text) ? "cancel" : "line",
             (activate ? kFlagActivate : 0) | (wrapUpInactive ? kFlagWrapUp : 0) |
                 (echo ? kFlagEcho : 0));
    m_queue.push_back({std::wstring(text), activate, wrapUpInactive});
}

void CommandProcessor::sendMacro(std::wstring_view macro, int flag) {
    noteSent(macro, "menu", flag);
    m_queue.push_back({textOfMacro(macro)});
}

void CommandProcessor::pump() {
    if (m_busy > 0 || m_queue.empty())
        return;
    const Busy busy(*this);
    for (int runs = 0; !m_queue.empty(); ++runs) {
        if (runs == kMostRuns)
            throw std::runtime_error("commands are sent to \"" + toUtf8(m_document.name()) +
                                     "\" without end");
        const Queued next = std::move(m_queue.front());
        m_queue.pop_front();
        runQueued(next);
    }
    comeToRest();
}

void CommandProcessor::runQueued(const Queued& queued) {
    DocumentList& documents = m_editor.documents();
    if (queued.activate)
        documents.activate(m_document);
    if (queued.wrapUpInactive && documents.active() != &m_document)
        cancelWaiting();
    CommandText text(queued.text);
    consume(text, true);
}

void CommandProcessor::type(std::wstring_view text) {
    const Busy busy(*this);
    m_typed.append(text);
    consume(m_typed, false);
    comeToRest();
}

bool CommandProcessor::doCommand(std::wstring_view text, int flag) {
    noteSent(text, "do_cmd", flag);
    return runNow(text);
}

bool CommandProcessor::runNow(std::wstring_view text) {
    const Busy busy(*this);
    bool good = false;
    {
        const Replaced<std::size_t> outer(m_outer, m_running.size());
        CommandText answers{std::wstring(text)};
        good = consume(answers, true);
    }
    comeToRest();
    return good;
}

void CommandProcessor::beginScripted(std::wstring_view name) {
    const Busy busy(*this);
    const CommandWord word = parseCommandWord(name);
    CommandDefinition definition;
    definition.globalName = toUpper(word.name);
    definition.make = [] { return std::make_unique<ScriptedCommand>(); };
    start(std::make_shared<const CommandDefinition>(std::move(definition)),
          word.transparent && isActive());
}

bool CommandProcessor::finish(CommandState outcome) {
    if (!isWaiting() || outcome == CommandState::Waiting)
        return false;
    const Busy busy(*this);
    // To become the current document is an event, in which the command may have been ended.
    if (isWaiting())
        stopInnermost(outcome);
    comeToRest();
    return true;
}

void CommandProcessor::abandon() {
    m_abandoned = true;
    m_queue.clear();
    m_typed.clear();
    cancelWaiting();
}

bool CommandProcessor::isAtWork() const {
    return std::any_of(m_running.begin(), m_running.end(),
                       [](const Run& run) { return !run.waiting; });
}

int CommandProcessor::activity() const {
    if (m_running.empty())
        return 0;
    const bool transparent = std::any_of(m_running.begin(), m_running.end(),
                                         [](const Run& run) { return run.transparent; });
    return transparent ? kActivityCommand | kActivityTransparent : kActivityCommand;
}

std::wstring CommandProcessor::activeNames() const {
    std::wstring names;
    for (const Run& run : m_running) {
        if (!names.empty())
            names += L'\'';
        names += run.definition->globalName;
    }
    return names;
}

bool CommandProcessor::mayUsePickSet() const {
    return m_running.empty() || m_running.back().definition->usesPickSet;
}

std::wstring CommandProcessor::prompt() const {
    return m_running.empty() ? std::wstring() : m_running.back().command->prompt();
}

bool CommandProcessor::asksForPoint() const {
    return isWaiting() && m_running.back().command->asksForPoint();
}

bool CommandProcessor::consume(CommandText& text, bool takeRest) {
    bool good = true;
    while (!text.isEmpty() && !m_abandoned) {
        if (text.takeCancel()) {
            cancelInnermost();
            continue;
        }
        const bool blanksBelong = isWaiting() && m_running.back().command->takesBlanks();
        const std::optional<std::wstring> answer = text.takeAnswer(blanksBelong, takeRest);
        if (answer)
            good = takeAnswer(*answer) && good;
        else if (!text.beginsWithCancel())
            break;
    }
    return good;
}

bool CommandProcessor::takeAnswer(const std::wstring& answer) {
    if (!isWaiting() || m_running.size() <= m_outer)
        return answer.empty() || startNamed(answer, false);
    const bool asksInside =
        !m_running.back().command->takesBlanks() && answer.size() > 1 && answer.front() == L'\'';
    return asksInside ? startNamed(answer, true) : feed(answer);
}

bool CommandProcessor::startNamed(const std::wstring& entered, bool inside) {
    const CommandWord word = parseCommandWord(entered);
    std::shared_ptr<const CommandDefinition> definition =
        m_editor.commands().find(word.name, word.global ? CommandNames::Global : CommandNames::Any);
    if (definition == nullptr) {
        noteEvent(entered, "unknown");
        return false;
    }
    if (inside && !definition->transparent) {
        noteEvent(definition->globalName, "refused");
        return false;
    }
    return start(std::move(definition), inside);
}

bool CommandProcessor::start(std::shared_ptr<const CommandDefinition> definition,
                             bool transparent) {
    if (m_abandoned)
        return false;
    leaveRest();
    std::unique_ptr<Command> made = definition->make();
    if (definition->undoable && !lockFor(*made)) {
        noteEvent(definition->globalName, "locked");
        m_editor.print(m_document, m_document.name() + L" is locked: " + definition->globalName +
                                       L" can't be done now.");
        return false;
    }
    // What may run inside of others leaves the selection to them.
    if (!definition->usesPickSet && !definition->transparent)
        m_document.pickSet().clear();
    const std::size_t run = m_running.size();
    m_running.push_back({definition, std::move(made), transparent, false});
    if (definition->undoable)
        m_document.data().undoLog().beginGroup(toUtf8(definition->globalName));
    noteEvent(definition->globalName, "started");
    return work(run, [this, &definition](Command& command) {
        m_editor.reactors().commandWillStart(definition->globalName.c_str());
        return command.start(scope());
    });
}

bool CommandProcessor::lockFor(const Command& command) {
    return m_document.locks().lock(DocumentLocks::kAutoWrite, &command) == Zorq::eOk;
}

bool CommandProcessor::feed(std::wstring_view answer) {
    const std::size_t run = m_running.size() - 1;
    m_running[run].waiting = false;
    m_document.input().endInput();
    return work(run, [this, answer](Command& command) { return command.feed(scope(), answer); });
}

template <class Work>
bool CommandProcessor::work(std::size_t run, Work step) {
    CommandState state = CommandState::Failed;
    try {
        state = step(*m_running[run].command);
    } catch (...) {
        end(run, CommandState::Failed);
        throw;
    }
    return settle(run, state);
}

bool CommandProcessor::settle(std::size_t run, CommandState state) {
    if (state == CommandState::Waiting && m_abandoned) {
        m_running[run].command->stop(scope());
        state = CommandState::Cancelled;
    }
    if (state == CommandState::Waiting) {
        m_running[run].waiting = true;
        m_document.input().beginInput();
        return true;
    }
    end(run, state);
    return state != CommandState::Failed;
}

void CommandProcessor::end(std::size_t run, CommandState outcome) {
    const Run ending = std::move(m_running[run]);
    m_running.erase(m_running.begin() + static_cast<std::ptrdiff_t>(run));
    const std::wstring& name = ending.definition->globalName;
    m_editor.variables().announceOutsideChanges();
    if (ending.definition->undoable) {
        m_document.locks().unlock(ending.command.get());
        m_document.data().undoLog().endGroup();
    }
    const Outcome told = outcomeOf(outcome);
    noteEvent(name, told.event);
    (m_editor.reactors().*told.tell)(name.c_str());
    // What waited below a command at work could not be cancelled with the others.
    if (m_abandoned)
        cancelWaiting();
}

void CommandProcessor::cancelInnermost() {
    if (isWaiting())
        stopInnermost(CommandState::Cancelled);
}

void CommandProcessor::cancelWaiting() {
    while (isWaiting())
        cancelInnermost();
}

void CommandProcessor::stopInnermost(CommandState outcome) {
    const std::size_t run = m_running.size() - 1;
    // It is nobody else's to end now, whatever is done inside the event.
    m_running[run].waiting = false;
    m_document.input().endInput();
    m_running[run].command->stop(scope());
    end(run, outcome);
}

void CommandProcessor::leaveRest() {
    const bool rested = std::exchange(m_resting, false);
    if (rested && !m_tellingRest)
        m_document.input().endQuiescentState();
}

void CommandProcessor::comeToRest() {
    if (m_busy > 1 || m_resting || isActive() || m_abandoned)
        return;
    m_resting = true;
    {
        const Replaced<bool> telling(m_tellingRest, true);
        m_document.input().beginQuiescentState();
    }
    // What ran inside the event left the rest without telling; it is over unless it waits.
    m_resting = !isActive();
}

void CommandProcessor::noteSent(std::wstring_view text, const char* way, int flag) {
    m_editor.journal().add("command", {{"text", toUtf8(text)},
                                       {"way", way},
                                       {"flag", flag},
                                       {"document", toUtf8(m_document.name())}});
}

void CommandProcessor::noteEvent(std::wstring_view text, const char* event) {
    m_editor.journal().add(
        "command",
        {{"text", toUtf8(text)}, {"event", event}, {"document", toUtf8(m_document.name())}});
}

}  // namespace workbench
