#include "workbench/core/host_call.h"
#include "workbench/core/workbench.h"
#include "workbench/editor/distance_text.h"
#include "workbench/editor/editor.h"

#include <hostapi/vxdb18/host_services.h>
#include <hostapi/zorq/variables.h>

namespace {

using workbench::HostCall;
using workbench::Workbench;

class HostServices final : public VxDbHostApplicationServices {
public:
    VxString program() const override {
        HostCall call("VxDbHostApplicationServices::program");
        return L"ZORQ";
    }

    VxDbDatabase* workingDatabase() const override {
        HostCall call("VxDbHostApplicationServices::workingDatabase");
        const workbench::Document* document = Workbench::current().editor().documents().current();
        VxDbDatabase* database =
            call.failed() || document == nullptr ? nullptr : &document->hostDatabase();
        return call.returns(database);
    }
};

/// The drawing's own unit mode; decimal while it can't be had.
workbench::LinearUnit currentUnit() {
    const workbench::Value unit = Workbench::current().editor().read(L"LUNITS");
    return unit.isInteger() ? static_cast<workbench::LinearUnit>(unit.asInteger())
                            : workbench::LinearUnit::Decimal;
}

}  // namespace

VxDbHostApplicationServices* vxdbHostApplicationServices() {
    // Has no state: it answers for the workbench that lives.
    static HostServices s_services;
    HostCall call("vxdbHostApplicationServices");
    VxDbHostApplicationServices* services = call.failed() ? nullptr : &s_services;
    return call.returns(services);
}

int vxdbDisToF(const wchar_t* text, int unit, double* value) {
    HostCall call("vxdbDisToF", {text, unit});
    if (call.failed())
        return call.returns(call.status(kRtError));
    const bool known = unit == -1 || (unit >= 1 && unit <= 5);
    if (text == nullptr || value == nullptr || !known)
        return call.returns(kRtError);
    const std::optional<double> distance = workbench::parseDistance(
        text, unit == -1 ? currentUnit() : static_cast<workbench::LinearUnit>(unit));
    if (!distance)
        return call.returns(kRtError);
    *value = *distance;
    return call.returns(kRtNorm);
}
