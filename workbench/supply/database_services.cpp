#include "workbench/core/host_call.h"
#include "workbench/editor/angle_text.h"
#include "workbench/editor/distance_text.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <hostapi/vxdb18/host_services.h>
#include <hostapi/zorq/variables.h>

#include <cmath>
#include <optional>

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
        const workbench::Document* document = Workbench::current().editor().documents().working();
        VxDbDatabase* database =
            call.failed() || document == nullptr ? nullptr : &document->hostDatabase();
        return call.returns(database);
    }
};

int variableOr(const wchar_t* name, int otherwise) {
    const workbench::Value value = Workbench::current().editor().read(name);
    return value.isInteger() ? static_cast<int>(value.asInteger()) : otherwise;
}

/// A unit mode or precision as it is told, or the drawing's own for -1; nothing if it is below
/// `least` or above `most`.
std::optional<int> chosen(int told, const wchar_t* variable, int least, int most) {
    const int value = told == -1 ? variableOr(variable, least) : told;
    return value >= least && value <= most ? std::optional(value) : std::nullopt;
}

constexpr int kMostPlaces = 8;

std::optional<workbench::LinearUnit> linearUnit(int told) {
    const std::optional<int> unit = chosen(told, L"LUNITS", 1, 5);
    return unit ? std::optional(static_cast<workbench::LinearUnit>(*unit)) : std::nullopt;
}

std::optional<workbench::AngleUnit> angleUnit(int told) {
    const std::optional<int> unit = chosen(told, L"AUNITS", 0, 4);
    return unit ? std::optional(static_cast<workbench::AngleUnit>(*unit)) : std::nullopt;
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
    const auto mode = linearUnit(unit);
    if (text == nullptr || value == nullptr || !mode)
        return call.returns(kRtError);
    const std::optional<double> distance = workbench::parseDistance(text, *mode);
    if (!distance)
        return call.returns(kRtError);
    *value = *distance;
    return call.returns(kRtNorm);
}

int vxdbAngToF(const wchar_t* text, int unit, double* value) {
    HostCall call("vxdbAngToF", {text, unit});
    if (call.failed())
        return call.returns(call.status(kRtError));
    const auto mode = angleUnit(unit);
    if (text == nullptr || value == nullptr || !mode)
        return call.returns(kRtError);
    const std::optional<double> angle = workbench::parseAngle(text, *mode);
    if (!angle)
        return call.returns(kRtError);
    *value = *angle;
    return call.returns(kRtNorm);
}

int vxdbRToS(double value, int unit, int precision, VxString& text) {
    HostCall call("vxdbRToS", {value, unit, precision});
    if (call.failed())
        return call.returns(call.status(kRtError));
    const auto mode = linearUnit(unit);
    const auto places = chosen(precision, L"LUPREC", 0, kMostPlaces);
    if (!mode || !places || !std::isfinite(value))
        return call.returns(kRtError);
    text = workbench::formatDistance(value, *mode, *places);
    return call.returns(kRtNorm);
}

int vxdbAngToS(double value, int unit, int precision, VxString& text) {
    HostCall call("vxdbAngToS", {value, unit, precision});
    if (call.failed())
        return call.returns(call.status(kRtError));
    const auto mode = angleUnit(unit);
    const auto places = chosen(precision, L"AUPREC", 0, kMostPlaces);
    if (!mode || !places || !std::isfinite(value))
        return call.returns(kRtError);
    text = workbench::formatAngle(value, *mode, *places);
    return call.returns(kRtNorm);
}
