#include "workbench/core/host_call.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <hostapi/zorq/commands.h>
#include <hostapi/zorq/variables.h>

namespace {

using workbench::Document;
using workbench::HostCall;
using workbench::Workbench;

workbench::DocumentList& documents() {
    return Workbench::current().editor().documents();
}

}  // namespace

void vxedSendMenuStringToExecute(VxApDocument* document, const wchar_t* text, int flag) {
    HostCall call("vxedSendMenuStringToExecute", {document, text, flag});
    Document* receiver = documents().find(document);
    if (!call.failed() && receiver != nullptr && text != nullptr)
        receiver->processor().sendMacro(text, flag);
}

int do_cmd(wchar_t* text, int flag, int unused, int echo) {
    HostCall call("do_cmd", {text, flag, unused, echo});
    if (call.failed())
        return call.returns(call.status(kRtError));
    Document* document = documents().current();
    const bool done =
        document != nullptr && text != nullptr && document->processor().doCommand(text, flag);
    return call.returns(done ? kRtNorm : kRtError);
}

void vxedHelp(const wchar_t* file, const wchar_t* topic, int command) {
    // The journal's record of the call is the help window of this host.
    HostCall call("vxedHelp", {file, topic, command});
}

bool vxedCommandActive() {
    HostCall call("vxedCommandActive");
    const Document* document = documents().current();
    return call.returns(!call.failed() && document != nullptr && document->processor().isActive());
}
