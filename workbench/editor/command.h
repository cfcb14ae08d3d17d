#pragma once

#include <string>
#include <string_view>

namespace workbench {

class Document;
class Editor;

/// Where a command stands after a step of its work.
enum class CommandState {
    Waiting,    ///< for the next answer
    Ended,      ///< it did what it was asked for
    Cancelled,  ///< its user gave it up
    Failed,     ///< it couldn't do it
};

/// What a command works on.
struct CommandScope {
    Editor& editor;
    Document& document;
};

/// A running command. It lives from its start to the answer that ends it.
class Command {
public:
    virtual ~Command() = default;
    /// Begins the work.
    virtual CommandState start(const CommandScope& scope) = 0;
    /// Takes the answer to the present prompt; empty for a mere Enter. Only while it waits.
    virtual CommandState feed(const CommandScope& scope, std::wstring_view answer);
    /// What it asks for; empty if it asks for nothing.
    virtual std::wstring prompt() const { return {}; }
    /// Whether the present prompt asks for a point.
    virtual bool asksForPoint() const { return false; }
    /// Whether a blank belongs to the present answer instead of ending it.
    virtual bool takesBlanks() const { return false; }
    /// Lets go of what it holds, since it is ended from outside; called at most once, while it waits.
    virtual void stop(const CommandScope& /*scope*/) {}
};

}  // namespace workbench
