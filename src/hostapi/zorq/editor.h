#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/vxdb18/rx_object.h>

/// Root of the host's event reactors.
class VXHOST VxRxEventReactor {
public:
    virtual ~VxRxEventReactor() = default;
};

/// Receives the editor's events. Not owned by the editor. Names of commands are global names in
/// upper case; a name is valid during the call only.
class VXHOST VxEditorReactor : public VxRxEventReactor {
public:
    virtual void commandWillStart(const wchar_t* /*command*/) {}
    virtual void commandEnded(const wchar_t* /*command*/) {}
    virtual void commandCancelled(const wchar_t* /*command*/) {}
    virtual void commandFailed(const wchar_t* /*command*/) {}
    /// A system variable was written; `success` is 0 if the write failed.
    virtual void sysVarChanged(const wchar_t* /*name*/, BOOL /*success*/) {}
    virtual void sysVarWillChange(const wchar_t* /*name*/) {}
    /// The application begins to quit.
    virtual void beginQuit() {}
    /// The quit was aborted.
    virtual void quitAborted() {}
    /// The view of the current viewport changed.
    virtual void viewChanged() {}
};

/// The editor, the registry's entry "VxEditor"; class "VxEditor".
class VXHOST VxEditor : public VxRxObject {
public:
    virtual void addReactor(VxEditorReactor* reactor) = 0;
    virtual void removeReactor(VxEditorReactor* reactor) = 0;
};
