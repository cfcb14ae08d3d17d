#include "workbench/editor/editor_objects.h"

#include "workbench/core/host_call.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/module_command.h"
#include "workbench/editor/statuses.h"

namespace workbench {

namespace {

constexpr const wchar_t* kEditorEntry = L"VxEditor";
constexpr const wchar_t* kCommandsEntry = L"ZORQ_REGISTERED_COMMANDS";

}  // namespace

EditorObjects::EditorObjects(Editor& editor, SystemRegistry& registry)
    : m_registry(registry),
      m_events(editor),
      m_commandStack(editor) {
    m_registry.add(kEditorEntry, L"VxEditor", m_events);
    m_registry.add(kCommandsEntry, L"VxEdCommandStack", m_commandStack);
}

EditorObjects::~EditorObjects() {
    m_registry.remove(kCommandsEntry);
    m_registry.remove(kEditorEntry);
}

void EditorObjects::Events::addReactor(VxEditorReactor* reactor) {
    HostCall call("VxEditor::addReactor", {reactor});
    if (!call.failed())
        m_editor.reactors().add(reactor);
}

void EditorObjects::Events::removeReactor(VxEditorReactor* reactor) {
    HostCall call("VxEditor::removeReactor", {reactor});
    if (!call.failed())
        m_editor.reactors().remove(reactor);
}

Zorq::ErrorStatus EditorObjects::CommandStack::addCommand(
    const wchar_t* group, const wchar_t* globalName, const wchar_t* localName, int flags,
    CommandFunction function, void* uiContext, int fcode, HINSTANCE resources, void** command) {
    HostCall call("VxEdCommandStack::addCommand",
                  {group, globalName, localName, flags, function != nullptr, uiContext, fcode,
                   resources != nullptr});
    if (call.failed())
        return call.returns(call.status(kNotApplicable));
    if (group == nullptr || globalName == nullptr || localName == nullptr || function == nullptr)
        return call.returns(kInvalidInput);
    if (command != nullptr)
        *command = nullptr;
    const bool added =
        m_editor.commands().add(defineModuleCommand(group, globalName, localName, flags, function));
    return call.returns(added ? Zorq::eOk : kDuplicateKey);
}

Zorq::ErrorStatus EditorObjects::CommandStack::removeGroup(const wchar_t* group) {
    HostCall call("VxEdCommandStack::removeGroup", {group});
    if (call.failed())
        return call.returns(call.status(kNotApplicable));
    const bool removed = group != nullptr && m_editor.commands().removeGroup(group);
    return call.returns(removed ? Zorq::eOk : kKeyNotFound);
}

}  // namespace workbench
