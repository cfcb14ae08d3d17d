#include "workbench/core/host_call.h"
#include "workbench/drawing/symbol_name.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/statuses.h"
#include "workbench/host/workbench.h"

#include <hostapi/vxdb18/symbol_utilities.h>

#include <optional>
#include <string_view>

namespace {

using workbench::HostCall;
using workbench::drawing::SymbolNameProblem;

/// EXTNAMES of a drawing; nothing if it isn't open.
std::optional<bool> extendedNames(const VxDbDatabase* database) {
    const workbench::Document* const document =
        workbench::Workbench::current().editor().documents().find(database);
    if (document == nullptr)
        return {};
    return valueIn(document->variables(), *workbench::findVariable(L"EXTNAMES")).asInteger() != 0;
}

Zorq::ErrorStatus statusOf(SymbolNameProblem problem) {
    switch (problem) {
    case SymbolNameProblem::None:
        return Zorq::eOk;
    case SymbolNameProblem::Missing:
        return workbench::kInvalidSymbolName;
    case SymbolNameProblem::ForbiddenCharacter:
        return workbench::kInvalidInput;
    case SymbolNameProblem::TooLong:
        return workbench::kStringTooLong;
    }
    return workbench::kInvalidInput;
}

class SymbolServices final : public VxDbSymbolUtilities::Services {
public:
    bool compatibilityMode(const VxDbDatabase* database) const override {
        HostCall call("VxDbSymbolUtilities::compatibilityMode", {database});
        return call.returns(!call.failed() && extendedNames(database) == false);
    }

    Zorq::ErrorStatus validateSymbolName(const wchar_t* name, bool allowBlanks,
                                         bool allowVerticalBar,
                                         bool compatibilityMode) const override {
        HostCall call("VxDbSymbolUtilities::validateSymbolName",
                      {name, allowBlanks, allowVerticalBar, compatibilityMode});
        if (call.failed())
            return call.returns(call.status(workbench::kNotApplicable));
        const std::wstring_view text = name == nullptr ? std::wstring_view() : name;
        return call.returns(statusOf(workbench::drawing::problemOfSymbolName(
            text, {compatibilityMode, allowBlanks, allowVerticalBar})));
    }
};

}  // namespace

const VxDbSymbolUtilities::Services* VxDbSymbolUtilities::servicesPtr() {
    // Have no state: they answer for the workbench that lives.
    static const SymbolServices s_services;
    HostCall call("VxDbSymbolUtilities::servicesPtr");
    const Services* services = call.failed() ? nullptr : &s_services;
    return call.returns(services);
}

Zorq::ErrorStatus vxdbGetExtnames(const VxDbDatabase* database, bool& extended) {
    HostCall call("vxdbGetExtnames", {database});
    if (call.failed())
        return call.returns(call.status(workbench::kNotApplicable));
    const std::optional<bool> names = extendedNames(database);
    if (!names)
        return call.returns(workbench::kNoDatabase);
    extended = *names;
    return call.returns(Zorq::eOk);
}
