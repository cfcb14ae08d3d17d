#pragma once

#include "workbench/drawing/database/reactor_list.h"

#include <hostapi/zorq/editor.h>

namespace workbench {

/// The receivers of the editor's events, told in the order in which they were added. None of them
/// is owned.
class EditorReactors {
public:
    void add(VxEditorReactor* reactor) { m_reactors.add(reactor); }
    void remove(VxEditorReactor* reactor) { m_reactors.remove(reactor); }

    void commandWillStart(const wchar_t* command);
    void commandEnded(const wchar_t* command);
    void commandCancelled(const wchar_t* command);
    void commandFailed(const wchar_t* command);
    void sysVarWillChange(const wchar_t* name);
    void sysVarChanged(const wchar_t* name, bool success);
    void beginQuit();
    void quitAborted();
    void viewChanged();

private:
    drawing::ReactorList<VxEditorReactor> m_reactors;
};

}  // namespace workbench
