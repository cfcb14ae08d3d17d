#pragma once

#include "workbench/drawing/database/object_id.h"
#include "workbench/editor/variables/variable_definition.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace workbench {

class Document;
class Editor;

/// Who writes a system variable.
enum class VariableWriter {
    Program,  ///< a module or the user: read-only variables and values out of range are refused
    Host,     ///< the host itself: only a value that the type can't hold is refused
};

/// The system variables of the editor: reading, writing, and the events of a change. Names are
/// taken without regard to case.
///
/// Every write, also of the value that the variable has already, is announced by a will-change
/// event and reported by a changed event. A refused value gets both too, the second one telling the
/// failure; an unknown name gets none.
class SystemVariables final : private VariableSession {
public:
    explicit SystemVariables(Editor& editor) : m_editor(editor) {}

    /// The value in the current document or the program; nil if it can't be had.
    Value read(const VariableDefinition& variable) const;
    /// The same by name; nil for an unknown one.
    Value read(std::wstring_view name) const;

    /// Writes a variable. False if it keeps its value because the new one is refused.
    bool write(const VariableDefinition& variable, const Value& value, VariableWriter writer);
    /// The same by name; false for an unknown one.
    bool write(std::wstring_view name, const Value& value, VariableWriter writer);
    /// A write that fails whatever the value, with its events.
    void failToWrite(const VariableDefinition& variable);

    /// Raises the changed events of variables whose records or profile were changed in other ways
    /// than by writing the variable: by a command, by undo, by another tool.
    void announceOutsideChanges();

private:
    friend class DrawingVariableChange;

    /// The drawing and the viewport that observed values belong to.
    struct ObservedPlace {
        std::uint32_t drawing = 0;  // serial; 0: none
        drawing::ObjectId viewport;
        friend bool operator==(const ObservedPlace&, const ObservedPlace&) = default;
    };

    // VariableSession:
    std::string profileName() const override;
    std::wstring documentName() const override;
    int commandActivity() const override;
    std::wstring commandNames() const override;

    bool writeAlone(const VariableDefinition& variable, const Value& value, VariableWriter writer);
    void writeImplied(const VariableDefinition& variable);
    VariableScope scope() const;
    const VariableValues& documentValues() const;
    VariableValues& documentValues();
    bool store(const VariableDefinition& variable, const Value& value);
    void storeInDrawing(const VariableDefinition& variable, const Value& value);
    /// Puts a value into a document, with the events of a change: a step of undo or redo.
    void exchange(Document& document, const VariableDefinition& variable, Value& value);
    void noteChange(const VariableDefinition& variable, const Value& before, const Value& after);
    void announceChange(const VariableDefinition& variable);
    void observe(VariableHome home);

    Editor& m_editor;
    VariableValues m_session;   // also the documents' while there is none
    VariableValues m_observed;  // of records and the profile, as last announced
    ObservedPlace m_observedPlace;
};

}  // namespace workbench
