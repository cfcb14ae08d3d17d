#pragma once

#include "workbench/base/text.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/editor.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace workbench {

using Lines = std::vector<std::string>;

/// Writes down the events of editor, documents and input, one line each, and can act inside one.
class EventLog final : public VxEditorReactor,
                       public VxApDocManagerReactor,
                       public VxEdInputContextReactor {
public:
    /// Does something inside an event, each time that its line comes.
    void on(const std::string& line, std::function<void()> action) { m_actions[line] = action; }
    /// The lines since the last call.
    Lines take() { return std::exchange(m_lines, {}); }

    // VxEditorReactor:
    void commandWillStart(const wchar_t* name) override { note("started " + toUtf8(name)); }
    void commandEnded(const wchar_t* name) override { note("ended " + toUtf8(name)); }
    void commandCancelled(const wchar_t* name) override { note("cancelled " + toUtf8(name)); }
    void commandFailed(const wchar_t* name) override { note("failed " + toUtf8(name)); }
    void sysVarChanged(const wchar_t* name, BOOL success) override {
        note((success != 0 ? "changed " : "unchanged ") + toUtf8(name));
    }
    void sysVarWillChange(const wchar_t* name) override { note("will change " + toUtf8(name)); }
    void beginQuit() override { note("quit begins"); }
    void quitAborted() override { note("quit aborted"); }
    void viewChanged() override { note("view changed"); }

    // VxApDocManagerReactor:
    void documentCreated(VxApDocument* document) override { note("created" + nameOf(document)); }
    void documentToBeDestroyed(VxApDocument* document) override {
        note("to be destroyed" + nameOf(document));
    }
    void documentDestroyed(const wchar_t* name) override { note("destroyed " + toUtf8(name)); }
    void documentBecameCurrent(VxApDocument* document) override {
        note("became current" + nameOf(document));
    }
    void documentToBeActivated(VxApDocument* document) override {
        note("to be activated" + nameOf(document));
    }

    // VxEdInputContextReactor:
    void beginInput() override { note("input begins"); }
    void endInput() override { note("input ends"); }
    void beginQuiescentState() override { note("rest begins"); }
    void endQuiescentState() override { note("rest ends"); }

private:
    static std::string nameOf(VxApDocument* document) {
        return " " + toUtf8(static_cast<Document*>(document)->name());
    }
    void note(std::string line) {
        m_lines.push_back(line);
        if (const auto action = m_actions.find(line); action != m_actions.end())
            action->second();
    }

    Lines m_lines;
    std::map<std::string, std::function<void()>> m_actions;
};

/// A workbench without a module. The log hears the editor; the test adds it elsewhere.
class EditorTest : public testing::Test {
protected:
    EditorTest() { editor().reactors().add(&m_log); }
    ~EditorTest() override { editor().reactors().remove(&m_log); }

    Editor& editor() { return m_bench.editor(); }
    Document& newDocument(const std::wstring& name = L"A") {
        return editor().documents().create(name);
    }
    CommandProcessor& processor() { return editor().documents().current()->processor(); }
    EventLog& log() { return m_log; }
    Lines events() { return m_log.take(); }

    /// Runs commands in the current document at once.
    bool run(std::wstring_view text) { return processor().runNow(text); }
    Value read(std::wstring_view name) { return editor().read(name); }
    bool write(std::wstring_view name, const Value& value) {
        return editor().variables().write(name, value, VariableWriter::Program);
    }
    /// The records of a kind, each as one line of a field's text.
    Lines fields(const char* kind, const char* field) {
        Lines lines;
        for (const JournalRecord& record : m_bench.journal().take(kind)) {
            const Value& value = record.field(field);
            if (value.isString())
                lines.push_back(value.asString());
        }
        return lines;
    }

    Workbench m_bench{WorkbenchOptions{}};

private:
    EventLog m_log;
};

}  // namespace workbench
