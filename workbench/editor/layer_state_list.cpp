#include "workbench/editor/layer_state_list.h"

#include "workbench/base/text.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layer_state.h"
#include "workbench/editor/document.h"

namespace workbench {

namespace {

using drawing::Current;
using drawing::Database;
using drawing::LayerState;
using drawing::ObjectId;
using drawing::RecordKind;
using drawing::Status;
using drawing::UndoGroup;
using drawing::Writing;

constexpr const char* kUndoName = "LAYERSTATE";

/// What keeps a change of the state of a name from being made; empty if nothing does.
std::wstring problemOf(Status status, const std::wstring& name) {
    switch (status) {
    case Status::Ok:
        return {};
    case Status::InvalidName:
        return L"A layer state has a name.";
    case Status::DuplicateName:
        return L"There is a layer state \"" + name + L"\" already.";
    case Status::NullObjectId:
    case Status::UnknownId:
    case Status::WasErased:
        return L"There is no layer state \"" + name + L"\".";
    default:
        return L"The layer state \"" + name + L"\" can't be changed now.";
    }
}

/// The state that was restored last goes by its new name.
void followRename(Database& database, const std::string& name, const std::string& newName) {
    const ObjectId id = database.first(RecordKind::Current);
    const auto* const present = database.look<Current>(id);
    if (present == nullptr || !equalNoCase(present->layerState, name))
        return;
    if (Writing<Current> current(database, id); current)
        current->layerState = newName;
}

Status renameState(Database& database, ObjectId id, const std::string& newName) {
    if (newName.empty())
        return Status::InvalidName;
    const ObjectId bearer = database.find(RecordKind::LayerState, newName);
    if (!bearer.isNull() && bearer != id)
        return Status::DuplicateName;
    Writing<LayerState> state(database, id);
    if (!state)
        return state.status();
    followRename(database, state->name, newName);
    state->name = newName;
    return Status::Ok;
}

}  // namespace

Database& LayerStateList::data() const {
    return m_document.data();
}

ObjectId LayerStateList::find(const std::wstring& name) const {
    return data().find(RecordKind::LayerState, toUtf8(name));
}

std::vector<std::wstring> LayerStateList::names() const {
    std::vector<std::wstring> names;
    for (const ObjectId id : data().ids(RecordKind::LayerState))
        names.push_back(toWide(data().look<LayerState>(id)->name));
    return names;
}

std::wstring LayerStateList::descriptionOf(const std::wstring& name) const {
    const auto* const state = data().look<LayerState>(find(name));
    return state == nullptr ? std::wstring() : toWide(state->description);
}

std::wstring LayerStateList::restore(const std::wstring& name) {
    return problemOf(drawing::restoreLayerState(data(), find(name), drawing::activeViewport(data()),
                                                m_restoring.unknown, m_restoring.look),
                     name);
}

std::wstring LayerStateList::save(const std::wstring& name, const std::wstring& description) {
    const UndoGroup group(data().undoLog(), kUndoName);
    return problemOf(drawing::saveLayerState(data(), toUtf8(name), toUtf8(description),
                                             drawing::activeViewport(data()))
                         .status,
                     name);
}

std::wstring LayerStateList::rename(const std::wstring& name, const std::wstring& newName) {
    const UndoGroup group(data().undoLog(), kUndoName);
    const Status status = renameState(data(), find(name), toUtf8(newName));
    return problemOf(status, status == Status::DuplicateName ? newName : name);
}

std::wstring LayerStateList::erase(const std::wstring& name) {
    const UndoGroup group(data().undoLog(), kUndoName);
    Writing<LayerState> state(data(), find(name));
    return problemOf(state.erase(), name);
}

}  // namespace workbench
