#include "workbench/editor/layer_state_dialogs.h"

#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/editor/editor.h"

#include <optional>
#include <utility>

namespace workbench {

namespace {

/// Whether layers that a state doesn't know are turned off, and whether a viewport of a layout gets what
/// it can have of its own: settings of the manager's, 0 for no.
constexpr const char* kTurnsUnknownOff = "Dialogs/VxLayerApps:LayerStatesManager/LayerNotFound";
constexpr const char* kAsOverrides = "Dialogs/VxLayerApps:LayerStatesManager/RestoreAsOverrides";

std::optional<std::wstring> textMember(const Value& table, const char* name) {
    const Value* const member = table.member(name);
    if (member == nullptr || !member->isString())
        return {};
    return toWide(member->asString());
}

std::wstring restore(LayerStateList& states, const std::wstring& name, const Value& /*table*/) {
    return states.restore(name);
}

std::wstring save(LayerStateList& states, const std::wstring& name, const Value& table) {
    return states.save(name, textMember(table, "description").value_or(L""));
}

}  // namespace

struct LayerStateDialogs::Dialog {
    const char* name;
    std::wstring (*apply)(LayerStateList& states, const std::wstring& name, const Value& table);
    bool (LayerStatePresenter::*show)(LayerStateList& states);
};

bool LayerStateDialogs::manage(const std::string& owner) {
    return open({"Layer States Manager", workbench::restore, &LayerStatePresenter::manage}, owner);
}

bool LayerStateDialogs::save(const std::string& owner) {
    return open({"New Layer State", workbench::save, &LayerStatePresenter::save}, owner);
}

bool LayerStateDialogs::open(const Dialog& dialog, const std::string& owner) {
    Document* const document = m_editor.documents().current();
    if (document == nullptr)
        return false;
    std::vector<JournalRecord::Field> fields{{"name", dialog.name}};
    if (!owner.empty())
        fields.push_back({"owner", owner});
    m_editor.journal().add("dialog", std::move(fields));
    const Turn turn;  // the document may be closed while a user has the dialog
    LayerStateList states(*document, restoring());
    if (const std::optional<Value> table = m_editor.answers().take("dialog"))
        return answer(dialog, *document, states, *table);
    return m_presenter != nullptr && (m_presenter->*dialog.show)(states);
}

bool LayerStateDialogs::answer(const Dialog& dialog, const Document& document,
                               LayerStateList& states, const Value& table) {
    const std::optional<std::wstring> name = textMember(table, "name");
    if (!name)
        return false;
    const std::wstring problem = dialog.apply(states, *name, table);
    if (!problem.empty())
        m_editor.print(document, problem);
    return problem.empty();
}

LayerStateList::Restoring LayerStateDialogs::restoring() const {
    const auto isSet = [this](const char* setting) {
        const Value value = m_editor.profileValues().registryValue(setting);
        return !value.isInteger() || value.asInteger() != 0;
    };
    return {
        isSet(kTurnsUnknownOff) ? drawing::UnknownLayers::TurnOff : drawing::UnknownLayers::Keep,
        isSet(kAsOverrides) ? drawing::RestoredLook::OfViewport : drawing::RestoredLook::OfLayers};
}

}  // namespace workbench
