#include "workbench/editor/document.h"

#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/drawing/lookup.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"

namespace workbench {

namespace {

/// The variables that a drawing's file carries; those that don't fit keep their initial value.
VariableValues readHeader(const drawing::Drawing& drawing) {
    VariableValues values;
    for (const auto& [name, value] : drawing.variables) {
        const VariableDefinition* variable = findVariable(toWide(name));
        if (variable == nullptr || variable->home != VariableHome::Drawing)
            continue;
        const std::optional<Value> fitted = fitToType(variable->type, value);
        if (fitted && isInRange(*variable, *fitted))
            values.insert_or_assign(variable, *fitted);
    }
    return values;
}

}  // namespace

Document::Document(Editor& editor, std::wstring name, std::unique_ptr<drawing::Drawing> drawing)
    : m_name(std::move(name)),
      m_drawing(std::move(drawing)),
      m_hostDatabase(std::make_unique<DatabaseAdapter>(m_drawing->db, m_variables, m_openObjects)),
      m_variables(readHeader(*m_drawing)),
      m_viewHistory(std::make_unique<ViewHistory>(m_drawing->db,
                                                  [this, &editor](drawing::ObjectId viewport) {
                                                      if (editor.documents().current() == this &&
                                                          viewport ==
                                                              drawing::activeViewport(data()))
                                                          editor.viewChanged();
                                                  })),
      m_openObjects(m_drawing->db, [this] { return m_locks.isForWriting(); }),
      m_processor(std::make_unique<CommandProcessor>(editor, *this)) {}

Document::~Document() = default;

void Document::beginGesture(drawing::UndoLog::Gesture gesture) {
    data().undoLog().beginGesture(gesture);
    m_viewHistory->beginGesture(gesture);
}

void Document::endGesture() {
    data().undoLog().endGesture();
    m_viewHistory->endGesture();
}

void Document::interruptGesture() {
    data().undoLog().interruptGesture();
    m_viewHistory->interruptGesture();
}

VxDbDatabase* Document::database() const {
    HostCall call("VxApDocument::database");
    VxDbDatabase* database = call.failed() ? nullptr : m_hostDatabase.get();
    return call.returns(database);
}

int Document::lockMode() const {
    HostCall call("VxApDocument::lockMode");
    return call.returns(call.failed() ? 0 : m_locks.mode());
}

VxEdInputManager* Document::inputManager() {
    HostCall call("VxApDocument::inputManager");
    VxEdInputManager* input = call.failed() ? nullptr : &m_input;
    return call.returns(input);
}

}  // namespace workbench
