#pragma once

#include "workbench/adapters/database_adapter.h"
#include "workbench/adapters/open_objects.h"
#include "workbench/drawing/drawing.h"
#include "workbench/editor/document_locks.h"
#include "workbench/editor/input_manager.h"
#include "workbench/editor/regeneration.h"
#include "workbench/editor/variables/variable_definition.h"
#include "workbench/editor/view_history.h"

#include <hostapi/zorq/documents.h>

#include <memory>
#include <string>
#include <vector>

namespace workbench {

class CommandProcessor;
class Editor;

/// An open document: a drawing with what the editor keeps for it.
class Document final : public VxApDocument {
public:
    /// `name` is its title and, until it is saved, its file's name.
    Document(Editor& editor, std::wstring name, std::unique_ptr<drawing::Drawing> drawing);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    ~Document() override;

    // VxApDocument:
    VxDbDatabase* database() const override;
    int lockMode() const override;
    VxEdInputManager* inputManager() override;

    const std::wstring& name() const { return m_name; }
    drawing::Drawing& drawing() { return *m_drawing; }
    drawing::Database& data() const { return m_drawing->db; }
    /// The database as modules see it: one object for the document's life.
    DatabaseAdapter& hostDatabase() const { return *m_hostDatabase; }
    CommandProcessor& processor() const { return *m_processor; }
    InputManager& input() { return m_input; }
    DocumentLocks& locks() { return m_locks; }
    const DocumentLocks& locks() const { return m_locks; }
    ViewHistory& viewHistory() { return *m_viewHistory; }
    OpenObjects& openObjects() { return m_openObjects; }
    Regeneration& regeneration() { return m_regeneration; }

    /// The entities that were selected before a command; see `EntitySelection`.
    std::vector<drawing::ObjectId>& pickSet() { return m_pickSet; }

    /// A gesture is one step of undo and of the viewports' histories; see there.
    void beginGesture(drawing::UndoLog::Gesture gesture = drawing::UndoLog::Gesture::New);
    void endGesture();
    void interruptGesture();

    /// The values of the variables that live with the document, as far as they were written.
    VariableValues& variables() { return m_variables; }
    const VariableValues& variables() const { return m_variables; }

private:
    std::wstring m_name;
    std::unique_ptr<drawing::Drawing> m_drawing;
    std::unique_ptr<DatabaseAdapter> m_hostDatabase;
    VariableValues m_variables;
    InputManager m_input;
    DocumentLocks m_locks;
    std::unique_ptr<ViewHistory> m_viewHistory;
    OpenObjects m_openObjects;
    std::vector<drawing::ObjectId> m_pickSet;
    Regeneration m_regeneration;
    std::unique_ptr<CommandProcessor> m_processor;
};

}  // namespace workbench
