#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/drawing/path_access.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/script/calls.h"
#include "workbench/script/lua_values.h"
#include "workbench/script/script_error.h"

#include <lua.hpp>

#include <utility>

namespace workbench::script {

namespace {

Editor& editor(Session& session) {
    return session.workbench().editor();
}

int pushText(lua_State* lua, const std::wstring& text) {
    lua_pushstring(lua, toUtf8(text).c_str());
    return 1;
}

Document& documentNamed(Session& session, const std::string& name) {
    Document* document = editor(session).documents().find(toWide(name));
    if (document == nullptr)
        throw ScriptError("there is no document \"" + name + "\"");
    return *document;
}

Document& currentDocument(Session& session) {
    session.needDocument();
    Document* document = editor(session).documents().current();
    if (document == nullptr)
        throw ScriptError("no document is open");
    return *document;
}

int newDocument(Session& session, Arguments& arguments) {
    session.noteDocumentMade();
    const std::wstring name = toWide(arguments.text(1));
    editor(session).documents().create(name);
    session.settle();
    return pushText(arguments.lua(), name);
}

int open(Session& session, Arguments& arguments) {
    session.noteDocumentMade();
    std::wstring name;
    {
        const Turn turn;
        name = editor(session).documents().open(arguments.text(1)).name();
    }
    session.settle();
    return pushText(arguments.lua(), name);
}

int activate(Session& session, Arguments& arguments) {
    editor(session).documents().activate(documentNamed(session, arguments.text(1)));
    session.settle();
    return 0;
}

/// A command at work stands on its document; one that only waits is cancelled.
int close(Session& session, Arguments& arguments) {
    const std::string name = arguments.text(1);
    Document& document = documentNamed(session, name);
    if (document.processor().isAtWork())
        throw ScriptError("the document \"" + name + "\" can't be closed while its command " +
                          toUtf8(document.processor().activeNames()) + " is at work");
    editor(session).documents().close(document);
    session.settle();
    return 0;
}

int type(Session& session, Arguments& arguments) {
    const std::string text = arguments.text(1);
    currentDocument(session);
    editor(session).type(toWide(text));
    session.runHost();
    return 0;
}

int begin(Session& session, Arguments& arguments) {
    const std::string command = arguments.text(1);
    currentDocument(session);
    editor(session).beginCommand(toWide(command));
    session.runHost();
    return 0;
}

CommandState outcomeNamed(const std::string& name) {
    if (name == "ended")
        return CommandState::Ended;
    if (name == "cancelled")
        return CommandState::Cancelled;
    if (name == "failed")
        return CommandState::Failed;
    throw ScriptError("a command ends as \"ended\", \"cancelled\" or \"failed\", not \"" + name +
                      "\"");
}

int finish(Session& session, Arguments& arguments) {
    const CommandState outcome = outcomeNamed(arguments.optionalText(1).value_or("ended"));
    if (!editor(session).finishCommand(outcome))
        throw ScriptError("no command is running");
    session.runHost();
    return 0;
}

int select(Session& session, Arguments& arguments) {
    Document& document = currentDocument(session);
    auto entities = EntitySelection::entitiesOf(document, arguments.value(1));
    if (!editor(session).selection().selectBefore(document, entities))
        throw ScriptError("a command is running: what it asks for is answered by wb.answer");
    session.settle();
    return 0;
}

int var(Session& session, Arguments& arguments) {
    const std::wstring name = toWide(arguments.text(1));
    Value value = editor(session).read(name);
    if (value.isNil() && findVariable(name) != nullptr) {
        session.needDocument();
        value = editor(session).read(name);
    }
    push(arguments.lua(), value);
    return 1;
}

int set(Session& session, Arguments& arguments) {
    const std::string name = arguments.text(1);
    if (findVariable(toWide(name)) == nullptr) {
        throw ScriptError("there is no system variable \"" + name + "\"");
    }
    const Value value = arguments.value(2);
    if (editor(session).read(toWide(name)).isNil())
        session.needDocument();
    if (!editor(session).set(toWide(name), value)) {
        throw ScriptError(name + " can't hold " + value.describe());
    }
    session.settle();
    return 0;
}

int undo(Session& session, Arguments& arguments) {
    currentDocument(session);
    lua_pushboolean(arguments.lua(), editor(session).undo() ? 1 : 0);
    session.runHost();
    return 1;
}

int redo(Session& session, Arguments& arguments) {
    currentDocument(session);
    lua_pushboolean(arguments.lua(), editor(session).redo() ? 1 : 0);
    session.runHost();
    return 1;
}

int db(Session& session, Arguments& arguments) {
    const std::string path = arguments.text(1);
    drawing::Database& data =
        (arguments.has(3) ? documentNamed(session, arguments.text(3)) : currentDocument(session))
            .data();
    if (arguments.count() < 2) {
        push(arguments.lua(), drawing::getByPath(data, path));
        return 1;
    }
    session.noteGesture("db " + path + " " + arguments.words(2));
    drawing::setByPath(data, path, arguments.value(2));
    session.settle();
    return 0;
}

}  // namespace

const std::vector<Call>& documentCalls() {
    static const std::vector<Call> calls{
        {"activate", activate, CallKind::Acts},
        {"begin", begin, CallKind::Acts},
        {"close", close, CallKind::Acts},
        {"db", db},
        {"finish", finish, CallKind::Acts},
        {"new", newDocument, CallKind::Acts},
        {"open", open, CallKind::Acts},
        {"redo", redo, CallKind::Acts},
        {"select", select, CallKind::Acts},
        {"set", set, CallKind::Acts},
        {"type", type, CallKind::Acts},
        {"undo", undo, CallKind::Acts},
        {"var", var},
    };
    return calls;
}

}  // namespace workbench::script
