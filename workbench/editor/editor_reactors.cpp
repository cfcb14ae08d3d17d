#include "workbench/editor/editor_reactors.h"

namespace workbench {

void EditorReactors::commandWillStart(const wchar_t* command) {
    m_reactors.notify([command](VxEditorReactor& to) { to.commandWillStart(command); });
}

void EditorReactors::commandEnded(const wchar_t* command) {
    m_reactors.notify([command](VxEditorReactor& to) { to.commandEnded(command); });
}

void EditorReactors::commandCancelled(const wchar_t* command) {
    m_reactors.notify([command](VxEditorReactor& to) { to.commandCancelled(command); });
}

void EditorReactors::commandFailed(const wchar_t* command) {
    m_reactors.notify([command](VxEditorReactor& to) { to.commandFailed(command); });
}

void EditorReactors::sysVarWillChange(const wchar_t* name) {
    m_reactors.notify([name](VxEditorReactor& to) { to.sysVarWillChange(name); });
}

void EditorReactors::sysVarChanged(const wchar_t* name, bool success) {
    m_reactors.notify(
        [name, success](VxEditorReactor& to) { to.sysVarChanged(name, success ? 1 : 0); });
}

void EditorReactors::beginQuit() {
    m_reactors.notify([](VxEditorReactor& to) { to.beginQuit(); });
}

void EditorReactors::quitAborted() {
    m_reactors.notify([](VxEditorReactor& to) { to.quitAborted(); });
}

void EditorReactors::viewChanged() {
    m_reactors.notify([](VxEditorReactor& to) { to.viewChanged(); });
}

}  // namespace workbench
