#include "workbench/editor/system_variables.h"

#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/drawing/lookup.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/document.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/profile_values.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace workbench {

namespace {

bool isObserved(const VariableDefinition& variable) {
    return variable.home == VariableHome::Record || variable.home == VariableHome::Viewport ||
           variable.home == VariableHome::Profile;
}

}  // namespace

/// Takes the change of a variable that lives in a drawing back, and brings it again.
class DrawingVariableChange final : public drawing::UndoRecord {
public:
    DrawingVariableChange(SystemVariables& variables, Document& document,
                          const VariableDefinition& variable, Value other)
        : m_variables(variables),
          m_document(document),
          m_variable(variable),
          m_other(std::move(other)) {}

    void exchange() override { m_variables.exchange(m_document, m_variable, m_other); }

private:
    SystemVariables& m_variables;
    Document& m_document;  // owns the drawing, which owns the log
    const VariableDefinition& m_variable;
    Value m_other;
};

std::string SystemVariables::profileName() const {
    return m_editor.profileValues().currentProfile();
}

std::wstring SystemVariables::documentName() const {
    const Document* document = m_editor.documents().current();
    return document == nullptr ? std::wstring() : document->name();
}

int SystemVariables::commandActivity() const {
    const Document* document = m_editor.documents().current();
    return document == nullptr ? 0 : document->processor().activity();
}

std::wstring SystemVariables::commandNames() const {
    const Document* document = m_editor.documents().current();
    return document == nullptr ? std::wstring() : document->processor().activeNames();
}

VariableScope SystemVariables::scope() const {
    const Document* document = m_editor.documents().current();
    return {*this, document == nullptr ? nullptr : &document->data()};
}

/// The values that live with the current document; without one they live in the session.
const VariableValues& SystemVariables::documentValues() const {
    const Document* document = m_editor.documents().current();
    return document == nullptr ? m_session : document->variables();
}

VariableValues& SystemVariables::documentValues() {
    Document* document = m_editor.documents().current();
    return document == nullptr ? m_session : document->variables();
}

Value SystemVariables::read(const VariableDefinition& variable) const {
    switch (variable.home) {
    case VariableHome::Session:
        return valueIn(m_session, variable);
    case VariableHome::Profile:
        // A value out of range was put there by the host itself, and counts.
        return fitToType(variable.type, m_editor.profileValues().value(toUtf8(variable.name)))
            .value_or(variable.initial);
    case VariableHome::Document:
    case VariableHome::Drawing:
        return valueIn(documentValues(), variable);
    case VariableHome::Record:
    case VariableHome::Viewport:
    case VariableHome::Computed:
        return variable.get(scope());
    }
    return {};
}

Value SystemVariables::read(std::wstring_view name) const {
    const VariableDefinition* variable = findVariable(name);
    return variable == nullptr ? Value() : read(*variable);
}

bool SystemVariables::write(const VariableDefinition& variable, const Value& value,
                            VariableWriter writer) {
    Document* const document = m_editor.documents().current();
    if (variable.implied == nullptr || document == nullptr)
        return writeAlone(variable, value, writer);
    const Turn turn;  // a reactor may close the document
    const drawing::UndoGroup together(document->data().undoLog(), toUtf8(variable.name));
    if (!writeAlone(variable, value, writer))
        return false;
    if (m_editor.documents().current() == document)
        writeImplied(variable);
    return true;
}

void SystemVariables::writeImplied(const VariableDefinition& variable) {
    const std::optional<ImpliedValue> implied = variable.implied(scope());
    if (implied && read(implied->variable) != implied->value)
        write(implied->variable, implied->value, VariableWriter::Host);
}

bool SystemVariables::writeAlone(const VariableDefinition& variable, const Value& value,
                                 VariableWriter writer) {
    const std::optional<Value> fitted = fitToType(variable.type, value);
    const bool allowed = fitted && (writer == VariableWriter::Host ||
                                    (!variable.readOnly && isInRange(variable, *fitted)));
    if (!allowed) {
        failToWrite(variable);
        return false;
    }
    m_editor.reactors().sysVarWillChange(variable.name);
    const Value before = read(variable);
    const bool stored = store(variable, *fitted);
    if (stored)
        noteChange(variable, before, read(variable));
    m_editor.reactors().sysVarChanged(variable.name, stored);
    announceOutsideChanges();
    return stored;
}

bool SystemVariables::write(std::wstring_view name, const Value& value, VariableWriter writer) {
    const VariableDefinition* variable = findVariable(name);
    return variable != nullptr && write(*variable, value, writer);
}

void SystemVariables::failToWrite(const VariableDefinition& variable) {
    m_editor.reactors().sysVarWillChange(variable.name);
    m_editor.reactors().sysVarChanged(variable.name, false);
}

bool SystemVariables::store(const VariableDefinition& variable, const Value& value) {
    const VariableScope now = scope();
    switch (variable.home) {
    case VariableHome::Session:
        m_session.insert_or_assign(&variable, value);
        return true;
    case VariableHome::Profile:
        m_editor.profileValues().setValue(toUtf8(variable.name), value);
        m_observed.insert_or_assign(&variable, value);
        return true;
    case VariableHome::Document:
        documentValues().insert_or_assign(&variable, value);
        return true;
    case VariableHome::Drawing:
        storeInDrawing(variable, value);
        return true;
    case VariableHome::Record:
    case VariableHome::Viewport: {
        const bool stored = variable.set != nullptr && variable.set(now, value);
        m_observed.insert_or_assign(&variable, variable.get(now));
        return stored;
    }
    case VariableHome::Computed:
        return variable.set != nullptr && variable.set(now, value);
    }
    return false;
}

void SystemVariables::storeInDrawing(const VariableDefinition& variable, const Value& value) {
    Document* document = m_editor.documents().current();
    if (document == nullptr) {
        m_session.insert_or_assign(&variable, value);
        return;
    }
    const Value before = read(variable);
    document->variables().insert_or_assign(&variable, value);
    if (before != value)
        document->data().undoLog().add(
            std::make_unique<DrawingVariableChange>(*this, *document, variable, before));
}

void SystemVariables::exchange(Document& document, const VariableDefinition& variable,
                               Value& value) {
    const bool heard = m_editor.documents().current() == &document;
    if (heard)
        m_editor.reactors().sysVarWillChange(variable.name);
    Value& present = document.variables().try_emplace(&variable, variable.initial).first->second;
    std::swap(present, value);
    noteChange(variable, value, present);
    if (heard)
        m_editor.reactors().sysVarChanged(variable.name, true);
}

void SystemVariables::announceOutsideChanges() {
    const Document* document = m_editor.documents().current();
    const ObservedPlace place =
        document == nullptr
            ? ObservedPlace{}
            : ObservedPlace{document->data().serial(), drawing::activeViewport(document->data())};
    const ObservedPlace before = std::exchange(m_observedPlace, place);
    // Another document's or viewport's values are no changes.
    if (place.drawing != before.drawing)
        observe(VariableHome::Record);
    if (place != before)
        observe(VariableHome::Viewport);
    for (const VariableDefinition& variable : variableTable()) {
        if (isObserved(variable))
            announceChange(variable);
    }
}

void SystemVariables::announceChange(const VariableDefinition& variable) {
    const Value present = read(variable);
    const auto [observed, isNew] = m_observed.try_emplace(&variable, present);
    if (isNew || observed->second == present)
        return;
    const Value before = std::exchange(observed->second, present);
    noteChange(variable, before, present);
    m_editor.reactors().sysVarChanged(variable.name, true);
}

void SystemVariables::observe(VariableHome home) {
    for (const VariableDefinition& variable : variableTable()) {
        if (variable.home == home)
            m_observed.insert_or_assign(&variable, read(variable));
    }
}

void SystemVariables::noteChange(const VariableDefinition& variable, const Value& before,
                                 const Value& after) {
    if (before == after)
        return;
    m_editor.journal().add("var",
                           {{"name", toUtf8(variable.name)}, {"old", before}, {"new", after}});
}

}  // namespace workbench
