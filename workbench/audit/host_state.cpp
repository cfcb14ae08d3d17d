#include "workbench/audit/host_state.h"

#include "workbench/base/text.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/angle_text.h"
#include "workbench/editor/distance_text.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

namespace workbench {

bool HostState::hasDocument() const {
    return m_workbench.editor().documents().current() != nullptr;
}

const drawing::Database* HostState::drawing() const {
    const Document* const document = m_workbench.editor().documents().current();
    return document == nullptr ? nullptr : &document->data();
}

bool HostState::isCommandRunning() const {
    return whole(L"CMDACTIVE") != 0;
}

std::optional<double> HostState::number(const wchar_t* variable) const {
    const Value value = m_workbench.editor().read(variable);
    return value.isNumber() ? std::optional(value.asReal()) : std::nullopt;
}

int HostState::whole(const wchar_t* variable) const {
    return static_cast<int>(number(variable).value_or(0.0));
}

bool HostState::isOnSheet() const {
    return hasDocument() && whole(L"TILEMODE") == 0 &&
           whole(L"CVPORT") == drawing::Viewport::kPaperNumber;
}

const drawing::ViewParameters* HostState::view() const {
    const Document* const document = m_workbench.editor().documents().current();
    if (document == nullptr)
        return nullptr;
    const auto* const viewport =
        document->data().look<drawing::Viewport>(drawing::activeViewport(document->data()));
    return viewport == nullptr ? nullptr : &viewport->view;
}

std::string HostState::distanceText(double value) const {
    return toUtf8(
        formatDistance(value, static_cast<LinearUnit>(whole(L"LUNITS")), whole(L"LUPREC")));
}

std::string HostState::decimalText(double value) const {
    return toUtf8(formatDistance(value, LinearUnit::Decimal, whole(L"LUPREC")));
}

std::string HostState::angleText(double radians) const {
    return toUtf8(formatAngle(radians, static_cast<AngleUnit>(whole(L"AUNITS")), whole(L"AUPREC")));
}

}  // namespace workbench
