#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/variables/result_buffer.h"
#include "workbench/host/workbench.h"

#include <hostapi/zorq/variables.h>

#include <cstdlib>
#include <string>

namespace {

using workbench::HostCall;
using workbench::SystemVariables;
using workbench::VariableDefinition;
using workbench::Workbench;

/// A fault that was asked for one variable only, as "vxedGetVar:LAYLOCKFADECTL".
std::optional<workbench::Faults::Fault> takeFaultOf(const char* call,
                                                    const VariableDefinition& variable) {
    workbench::Faults& faults = Workbench::current().faults();
    if (!faults.isAnyPending())
        return {};
    return faults.take(std::string(call) + ":" + workbench::toUtf8(variable.name));
}

/// Whether a write of a variable would change the current drawing, for which nobody has locked it.
bool needsLock(const VariableDefinition& variable) {
    using enum workbench::VariableHome;
    const workbench::Document* const document = Workbench::current().editor().documents().current();
    const bool isInDrawing =
        variable.home == Drawing || variable.home == Record || variable.home == Viewport;
    return isInDrawing && document != nullptr && !document->locks().isForWriting();
}

}  // namespace

int vxedGetVar(const wchar_t* name, VxResultBuffer* result) {
    HostCall call("vxedGetVar", {name});
    if (call.failed())
        return call.returns(call.status(kRtError));
    const VariableDefinition* variable = name == nullptr ? nullptr : workbench::findVariable(name);
    if (variable == nullptr || result == nullptr)
        return call.returns(kRtError);
    if (const auto fault = takeFaultOf("vxedGetVar", *variable))
        return call.returns(fault->status.value_or(kRtError));
    const workbench::Value value = Workbench::current().editor().variables().read(*variable);
    return call.returns(workbench::fillResultBuffer(*result, variable->type, value) ? kRtNorm
                                                                                    : kRtError);
}

int vxedSetVar(const wchar_t* name, const VxResultBuffer* value) {
    const workbench::Value written =
        value == nullptr ? workbench::Value() : workbench::valueOf(*value);
    HostCall call("vxedSetVar", {name, workbench::shownValue(written)});
    const VariableDefinition* variable = name == nullptr ? nullptr : workbench::findVariable(name);
    if (variable == nullptr || value == nullptr)
        return call.returns(call.status(kRtError));
    SystemVariables& variables = Workbench::current().editor().variables();
    const auto fault = takeFaultOf("vxedSetVar", *variable);
    if (call.failed() || fault) {
        variables.failToWrite(*variable);
        return call.returns(fault ? fault->status.value_or(kRtError) : call.status(kRtError));
    }
    if (needsLock(*variable)) {
        variables.failToWrite(*variable);
        return call.returns(kRtError);
    }
    const bool stored = variables.write(*variable, written, workbench::VariableWriter::Program);
    return call.returns(stored ? kRtNorm : kRtError);
}

VxResultBuffer* vxutNewRb(int type) {
    HostCall call("vxutNewRb", {type});
    VxResultBuffer* buffer = nullptr;
    if (!call.failed()) {
        buffer = new VxResultBuffer();
        buffer->type = static_cast<short>(type);
    }
    return call.returns(buffer);
}

int vxutRelRb(VxResultBuffer* buffer) {
    HostCall call("vxutRelRb", {buffer});
    while (buffer != nullptr) {
        VxResultBuffer* next = buffer->next;
        if (buffer->type == kRtString)
            std::free(buffer->value.string);
        delete buffer;
        buffer = next;
    }
    return call.returns(kRtNorm);
}
