#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/vxdb18/rx_object.h>

class VxApDocument;

/// Flags of a registered command.
constexpr int kCommandTransparent = 1;  ///< May run inside another command.
constexpr int kCommandUsePickSet = 2;   ///< May use the selection made before it, if there is one.

/// The registered commands, the registry's entry "ZORQ_REGISTERED_COMMANDS"; class
/// "VxEdCommandStack".
class VXHOST VxEdCommandStack : public VxRxObject {
public:
    using CommandFunction = void (*)();
    /// Adds a command to a group. The further arguments are null, -1, null, null here. Returns 0 on
    /// success; a name that the group has already keeps its command.
    virtual Zorq::ErrorStatus addCommand(const wchar_t* group, const wchar_t* globalName,
                                         const wchar_t* localName, int flags,
                                         CommandFunction function, void* uiContext, int fcode,
                                         HINSTANCE resources, void** command) = 0;
    /// Removes a group with its commands; a status other than 0 if there is none.
    virtual Zorq::ErrorStatus removeGroup(const wchar_t* group) = 0;
};

/// Runs a menu macro in a document; `flag` is 1.
void vxedSendMenuStringToExecute(VxApDocument* document, const wchar_t* text, int flag);
/// The host's immediate command entry: runs a command with all its answers before it returns. The
/// text may be changed during the call. Flag 0 or 1; the further arguments are 0 and 1.
int do_cmd(wchar_t* text, int flag, int unused, int echo);
/// Shows a help topic; a null file is the host's own help.
void vxedHelp(const wchar_t* file, const wchar_t* topic, int command);
/// Whether a command is running.
bool vxedCommandActive();
