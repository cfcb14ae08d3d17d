#include "workbench/audit/control_rules.h"
#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/text_style.h"

namespace workbench {

namespace {

/// The height that the current text style gives all its texts; 0 if each text has its own.
double fixedHeight(const drawing::Database& drawing) {
    const auto* const current =
        drawing.look<drawing::Current>(drawing.first(drawing::RecordKind::Current));
    const auto* const style = drawing.look<drawing::TextStyle>(current->textStyle.id);
    return style == nullptr ? 0.0 : style->height;
}

void compareHeight(const ShownControl& control, const HostState& host, AuditReport& report) {
    const double fixed = fixedHeight(*host.drawing());
    const double height = fixed > 0.0 ? fixed : host.number(L"TEXTSIZE").value_or(0.0);
    report.compare("text", control.choice(), host.distanceText(height));
}

}  // namespace

std::vector<ControlRule> textRules() {
    return {{"TextHeightComboControl", compareHeight}};
}

}  // namespace workbench
