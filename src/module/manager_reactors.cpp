#include "module/manager_reactors.h"

#include "core/broadcast_messages.h"
#include "core/module_call.h"
#include "core/text.h"
#include "module/control_manager.h"
#include "module/family_rows.h"
#include "module/manager.h"
#include "module/module.h"
#include "palette/panel_set.h"

namespace {

LPARAM asParameter(const void* pointer) {
    return reinterpret_cast<LPARAM>(pointer);
}

}  // namespace

void VxDaEditorReactor::commandWillStart(const wchar_t* command) {
    const ModuleCall call;
    m_manager->broadcast(WM_DA_COMMAND_STARTED, 0, asParameter(command));
}

void VxDaEditorReactor::commandEnded(const wchar_t* command) {
    const ModuleCall call;
    m_manager->broadcast(WM_DA_COMMAND_ENDED, 0, asParameter(command));
    if (CVxDaControlMgr* controls = controlManager())
        controls->onCommandEnded(command);
}

void VxDaEditorReactor::commandCancelled(const wchar_t* command) {
    const ModuleCall call;
    m_manager->broadcast(WM_DA_COMMAND_CANCELLED, 0, asParameter(command));
}

void VxDaEditorReactor::commandFailed(const wchar_t* command) {
    const ModuleCall call;
    // Kept as it is: a failure is told like a start, so that a control that disabled itself at the
    // start stays so until the next command ends or is cancelled.
    m_manager->broadcast(WM_DA_COMMAND_STARTED, 0, asParameter(command));
}

void VxDaEditorReactor::sysVarChanged(const wchar_t* name, BOOL success) {
    const ModuleCall call;
    m_manager->broadcast(WM_DA_SYSVAR_CHANGED, static_cast<WPARAM>(success), asParameter(name));
    if (CVxDaControlMgr* controls = controlManager())
        controls->onSysVarChanged(name, success);
    if (equalNoCase(name, L"CleanScreenState"))
        m_manager->onCleanScreenChanged();
}

void VxDaEditorReactor::sysVarWillChange(const wchar_t* name) {
    const ModuleCall call;
    m_manager->broadcast(WM_DA_SYSVAR_WILL_CHANGE, 0, asParameter(name));
}

void VxDaEditorReactor::beginQuit() {
    const ModuleCall call;
    m_manager->setQuitting(true);
}

void VxDaEditorReactor::quitAborted() {
    const ModuleCall call;
    m_manager->setQuitting(false);
}

void VxDaEditorReactor::viewChanged() {
    const ModuleCall call;
    if (CVxDaPanelSet* panelSet = m_manager->panelSet())
        panelSet->sendViewChanged();
}

void VxDaDocManagerReactor::documentCreated(VxApDocument* /*document*/) {
    const ModuleCall call;
    if (m_manager == nullptr)
        return;
    m_manager->onDocumentCreated();
}

void VxDaDocManagerReactor::documentToBeDestroyed(VxApDocument* document) {
    const ModuleCall call;
    if (m_manager == nullptr)
        return;
    m_manager->broadcast(WM_DA_DOC_TO_BE_DESTROYED, 0, asParameter(document));
    if (CVxDaControlMgr* controls = controlManager())
        controls->removeDocumentReactor(document);
}

void VxDaDocManagerReactor::documentDestroyed(const wchar_t* fileName) {
    const ModuleCall call;
    if (m_manager == nullptr)
        return;
    m_manager->onDocumentDestroyed(fileName);
}

void VxDaDocManagerReactor::documentBecameCurrent(VxApDocument* document) {
    const ModuleCall call;
    if (m_manager == nullptr)
        return;
    m_manager->broadcast(WM_DA_DOC_BECAME_CURRENT, 0, asParameter(document));
    refreshFamiliesForDocument();
}

void VxDaDocManagerReactor::documentToBeActivated(VxApDocument* document) {
    const ModuleCall call;
    if (m_manager == nullptr)
        return;
    m_manager->broadcast(WM_DA_DOC_TO_BE_ACTIVATED, 0, asParameter(document));
}

void VxDaProfileManagerReactor::currentProfileChanged(const wchar_t* /*name*/) {
    const ModuleCall call;
    if (CVxDaPanelSet* panelSet = m_manager->panelSet())
        panelSet->loadFromProfile();
}

void VxDaProfileManagerReactor::currentProfileWillBeSaved(const wchar_t* /*name*/) {
    const ModuleCall call;
    if (m_manager->isQuitting())
        return;
    if (CVxDaPanelSet* panelSet = m_manager->panelSet())
        panelSet->saveToProfile();
}
