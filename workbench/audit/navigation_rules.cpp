#include "workbench/audit/control_rules.h"
#include "workbench/base/text.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/slider_widget.h"

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

/// The lens slider: tenths of a millimetre in whole millimetres up to 200, coarser outside.
int lensPosition(double lens) {
    constexpr int kHighest = 2500;
    if (lens < 0.786)
        return 0;
    if (lens > 100000.0)
        return kHighest;
    if (lens < 15.0)
        return static_cast<int>(lens / 0.09476);
    if (lens <= 200.0)
        return 10 * static_cast<int>(lens);
    return 1999 + static_cast<int>(lens / 199.6);
}

/// The step slider: linear up to a thousand units, then forty positions a power of ten.
int stepPosition(double step) {
    if (step < 1.0)
        return static_cast<int>(1.0 + step * 150.0);
    if (step <= 1000.0)
        return static_cast<int>(step * 0.73 + 150.0);
    return static_cast<int>(880.0 + (std::log10(step) - 3.0) * 40.0);
}

int within(const SliderWidget& slider, int position) {
    return std::clamp(position, slider.lowest(), slider.highest());
}

/// In a parallel view the fields keep what they showed last, and none of it can be changed.
void compareLens(const ShownControl& control, const HostState& host, AuditReport& report) {
    const drawing::ViewParameters* const view = host.view();
    const bool perspective = view != nullptr && view->perspective;
    for (const char* part : {"slider", "edit", "edit2"})
        report.compareFlag((std::string(part) + ".enabled").c_str(), control.isEnabled(part),
                           perspective);
    if (!perspective)
        return;
    constexpr double kHalfFrame = 18.0;  // millimetres
    report.comparePosition("slider", control.slider()->position(), lensPosition(view->lens));
    report.compare("edit", control.text("edit"), host.decimalText(view->lens));
    report.compare("edit2", control.text("edit2"),
                   host.angleText(2.0 * std::atan(kHalfFrame / view->lens)));
}

void compareStepSize(const ShownControl& control, const HostState& host, AuditReport& report) {
    const double step = host.number(L"STEPSIZE").value_or(0.0);
    report.comparePosition("slider", control.slider()->position(),
                           within(*control.slider(), stepPosition(step)));
    report.compare("edit", control.text("edit"), host.distanceText(step));
}

void compareStepsPerSecond(const ShownControl& control, const HostState& host,
                           AuditReport& report) {
    const double steps = host.number(L"STEPSPERSEC").value_or(0.0);
    report.comparePosition("slider", control.slider()->position(),
                           within(*control.slider(), static_cast<int>(steps / 0.1)));
    report.compare("edit", control.text("edit"), host.decimalText(steps));
}

void comparePoint(const ShownControl& control, const HostState& host, AuditReport& report,
                  drawing::Vec3 drawing::ViewParameters::*point) {
    const drawing::ViewParameters* const view = host.view();
    if (view == nullptr)
        return;
    report.compare("x", control.text("x"), host.distanceText((view->*point).x));
    report.compare("y", control.text("y"), host.distanceText((view->*point).y));
    report.compare("z", control.text("z"), host.distanceText((view->*point).z));
}

void compareEye(const ShownControl& control, const HostState& host, AuditReport& report) {
    comparePoint(control, host, report, &drawing::ViewParameters::eye);
}

void compareTarget(const ShownControl& control, const HostState& host, AuditReport& report) {
    comparePoint(control, host, report, &drawing::ViewParameters::target);
}

/// The names of the drawing's views, without regard to their order.
std::vector<std::string> viewNames(const drawing::Database& drawing) {
    std::vector<std::string> names;
    for (const drawing::ObjectId id : drawing.ids(drawing::RecordKind::View))
        names.push_back(drawing.look<drawing::View>(id)->name);
    return names;
}

/// The name of the view that the current viewport has applied; empty for none.
std::string appliedView(const drawing::Database& drawing) {
    const auto* const viewport = drawing.look<drawing::Viewport>(drawing::activeViewport(drawing));
    if (viewport == nullptr)
        return {};
    const auto* const view = drawing.look<drawing::View>(viewport->appliedView.id);
    return view == nullptr ? std::string() : view->name;
}

std::vector<std::string> textsOf(const ComboWidget& list) {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(list.count()));
    for (int index = 0; index < list.count(); ++index)
        texts.push_back(toUtf8(list.entry(index)->text));
    return texts;
}

/// A closed list is as old as its last rebuild; an open one holds every view of the drawing.
void compareViewList(const ShownControl& control, const HostState& host, AuditReport& report) {
    const Document* const document = host.workbench().editor().documents().current();
    const ComboWidget* const list = control.list();
    if (document == nullptr || list == nullptr)
        return;
    const std::vector<std::string> texts = textsOf(*list);
    for (const std::string& name : viewNames(document->data())) {
        if (list->isOpen() && std::find(texts.begin(), texts.end(), name) == texts.end())
            report.compare("items", std::optional<std::string>(), name);
    }
    const std::string applied = appliedView(document->data());
    const bool isListed =
        !applied.empty() && std::find(texts.begin(), texts.end(), applied) != texts.end();
    const QRUI_COMBO_CTRL_ITEM* const selected = list->entry(list->selected());
    if (isListed && selected != nullptr)
        report.compare("selected", std::optional(toUtf8(selected->text)), applied);
}

}  // namespace

std::vector<ControlRule> navigationRules() {
    return {
        {"3DNavZoomSliderControl", compareLens},
        {"3DNavStepSizeSliderControl", compareStepSize},
        {"3DNavStepsPerSecSliderControl", compareStepsPerSecond},
        {"3DNavViewComboCtrl", compareViewList},
        {"3DNavPointTriplet1", compareEye},
        {"3DNavPointTriplet2", compareTarget},
    };
}

}  // namespace workbench
