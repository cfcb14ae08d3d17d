#pragma once

#include "workbench/core/answers.h"
#include "workbench/core/journal.h"
#include "workbench/editor/command_registry.h"
#include "workbench/editor/document_list.h"
#include "workbench/editor/editor_objects.h"
#include "workbench/editor/editor_reactors.h"
#include "workbench/editor/entity_selection.h"
#include "workbench/editor/layer_display.h"
#include "workbench/editor/layer_state_dialogs.h"
#include "workbench/editor/profile_values.h"
#include "workbench/editor/selection_sets.h"
#include "workbench/editor/system_variables.h"

#include <string_view>
#include <vector>

namespace workbench {

/// The editor: system variables, documents, commands, and the events of all of them. It composes
/// its units; what they do stands with them.
class Editor {
public:
    /// All of them must outlive the editor, whose objects are in the registry meanwhile.
    Editor(Journal& journal, Answers& answers, ProfileValues& profileValues,
           SystemRegistry& registry);
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    SystemVariables& variables() { return m_variables; }
    DocumentList& documents() { return m_documents; }
    CommandRegistry& commands() { return m_commands; }
    EditorReactors& reactors() { return m_reactors; }
    EditorObjects& objects() { return m_objects; }
    SelectionSets& selectionSets() { return m_selectionSets; }
    EntitySelection& selection() { return m_selection; }
    LayerStateDialogs& layerStateDialogs() { return m_layerStateDialogs; }
    Journal& journal() { return m_journal; }
    Answers& answers() { return m_answers; }
    ProfileValues& profileValues() { return m_profileValues; }
    LayerDisplay& layerDisplay() { return m_layerDisplay; }

    // The session, as scripts and the desktop drive it.

    /// Runs the command text that waits in all documents, and tells of variables that were changed
    /// from outside. To be called whenever the host would come round to its command loop.
    void pump();
    /// A gesture of the user's hand begins: what it writes, in whatever document, is one step of undo.
    void beginGesture(drawing::UndoLog::Gesture gesture);
    void endGesture();
    /// Shows a text above the command line of a document: a record of the journal.
    void print(const Document& document, std::wstring_view text);
    /// Types at the command line of the current document. False without a document.
    bool type(std::wstring_view text);
    /// Starts a command that waits for input, under any name. False without a document.
    bool beginCommand(std::wstring_view name);
    /// Ends the innermost command of the current document. False if none waits.
    bool finishCommand(CommandState outcome);
    /// Writes a variable as the host itself, read-only ones too. False for an unknown name and for
    /// a value that it can't hold.
    bool set(std::wstring_view name, const Value& value);
    /// A variable's value; nil for an unknown name, and for one that can't be had now.
    Value read(std::wstring_view name) const { return m_variables.read(name); }
    /// As the commands U and REDO. False without a document.
    bool undo();
    bool redo();
    void quitBegin() { m_reactors.beginQuit(); }
    void quitAbort() { m_reactors.quitAborted(); }
    void viewChanged() { m_reactors.viewChanged(); }

private:
    bool runNow(std::wstring_view text);
    void interruptGesture();

    Journal& m_journal;
    Answers& m_answers;
    ProfileValues& m_profileValues;
    EditorReactors m_reactors;
    CommandRegistry m_commands;
    SystemVariables m_variables{*this};
    DocumentList m_documents{*this};
    EditorObjects m_objects;
    SelectionSets m_selectionSets{m_documents};
    EntitySelection m_selection{*this};
    LayerStateDialogs m_layerStateDialogs{*this};
    LayerDisplay m_layerDisplay;
    std::vector<Document*> m_inGesture;  // in the order of their making; not owned, may have gone
};

}  // namespace workbench
