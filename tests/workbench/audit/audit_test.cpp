#include "workbench/audit/audit.h"

#include "controls/toolbar_controls.h"
#include "tests/workbench/script/script_fixture.h"
#include "workbench/base/text.h"

#include <algorithm>
#include <string>
#include <vector>

namespace workbench::script {
namespace {

class AuditTest : public ScriptTest {
protected:
    /// Does something on the dashboard, at rest afterwards, and returns what the audit finds.
    std::vector<AuditFinding> findingsAfter(const std::string& script) {
        runOnDashboard(script + " wb.wait(500) wb.idle(2)");
        return audit(workbench());
    }
};

TEST_F(AuditTest, ADashboardAtRestAgrees) {
    EXPECT_EQ(findingsAfter(""), std::vector<AuditFinding>{});
}

TEST_F(AuditTest, WithoutADashboardThereIsNothingToCompare) {
    run("wb.new('A')");
    EXPECT_EQ(audit(workbench()), std::vector<AuditFinding>{});
}

TEST_F(AuditTest, GesturesAndCommandsLeaveNothingBehind) {
    EXPECT_EQ(findingsAfter(R"(
        wb.control("LayerLockTransparencySliderControl"):enter("70")
        wb.control("3DNavStepSizeSliderControl"):drag(400, 700)
        wb.control("3DNavStepSizeSliderControl"):release()
        wb.set("PERSPECTIVE", 1)
        wb.control("3DNavZoomSliderControl"):enter("85")
        wb.set("LIGHTINGUNITS", 1)
        wb.type("CLAYER\n0\n")
    )"),
              std::vector<AuditFinding>{});
}

/// The control can't read the value that it is told of, and shows another one.
constexpr const char* kUnreadFade = R"(
    wb.fail("vxedGetVar")
    wb.set("LAYLOCKFADECTL", 70)
    wb.unfail("vxedGetVar")
)";

TEST_F(AuditTest, AValueThatTheControlCouldNotReadIsFound) {
    const auto findings = findingsAfter(kUnreadFade);
    const std::string control = "LayerLockTransparencySliderControl";
    EXPECT_EQ(findings, (std::vector<AuditFinding>{{control, "slider", "1", "70"},
                                                   {control, "edit", "1%", "70%"},
                                                   {control, "slider.enabled", "false", "true"},
                                                   {control, "edit.enabled", "false", "true"}}));
}

TEST_F(AuditTest, ALensSliderThatCannotReadItsViewIsFound) {
    const auto findings = findingsAfter(R"(
        wb.set("PERSPECTIVE", 1) wb.idle(1)
        wb.fail("vxgsGetLensLength")
        wb.db("viewports.current.lens", 35.0)
    )");
    std::vector<std::string> fields;
    for (const AuditFinding& finding : findings)
        fields.push_back(finding.control + "." + finding.field);
    EXPECT_EQ(fields, (std::vector<std::string>{"3DNavZoomSliderControl.slider",
                                                "3DNavZoomSliderControl.edit",
                                                "3DNavZoomSliderControl.edit2"}));
}

TEST_F(AuditTest, AFilterComboThatDoesNotFollowIsFound) {
    EXPECT_EQ(findingsAfter(R"(wb.db("filters.current", "All Used Layers"))"),
              std::vector<AuditFinding>(
                  2, {"LayerFilterComboControl", "text", "All", "All Used Layers"}));
}

TEST_F(AuditTest, ATextHeightThatDoesNotFollowIsFound) {
    EXPECT_EQ(findingsAfter(R"(wb.db("textstyles.Standard.height", 9.0))"),
              std::vector<AuditFinding>(2, {"TextHeightComboControl", "text", "2.5000", "9.0000"}));
}

TEST_F(AuditTest, AToolThatDoesNotFollowIsFound) {
    const auto findings = findingsAfter(R"(
        wb.fail("vxedGetVar")
        wb.set("PERSPECTIVE", 1)
    )");
    const AuditFinding tool{"ID_Perspective_Projection", "checked", "false", "true"};
    EXPECT_NE(std::find(findings.begin(), findings.end(), tool), findings.end());
}

TEST_F(AuditTest, WhatIsBeingTypedIsNoFinding) {
    EXPECT_EQ(findingsAfter(R"(wb.control("LayerLockTransparencySliderControl"):put("12"))"),
              std::vector<AuditFinding>{});
}

TEST_F(AuditTest, AControlThatIsNotOnTheScreenIsNotCompared) {
    EXPECT_EQ(findingsAfter(std::string(kUnreadFade) + R"(wb.panel("Layers"):menu("Hide"))"),
              std::vector<AuditFinding>{});
}

TEST_F(AuditTest, ScriptsGetTheFindingsAsTables) {
    runOnDashboard(std::string("assert(#wb.audit() == 0)") + kUnreadFade + R"(
        local first = wb.audit()[1]
        assert(first.control == "LayerLockTransparencySliderControl" and first.field == "slider")
        assert(first.shown == "1" and first.expected == "70")
    )");
}

TEST_F(AuditTest, WhatIsStaleOnPurposeIsToldWithItsReasonAndIsNoFinding) {
    runOnDashboard(R"(
        wb.control("LayerLockTransparencySliderControl"):put("12")
        local report = wb.audit()
        assert(#report == 0 and next(report) == nil)
        assert(#report.stale == 1)
        local stale = report.stale[1]
        assert(stale.control == "LayerLockTransparencySliderControl" and stale.field == "edit")
        assert(stale.shown == "12" and stale.expected == "50%")
        assert(stale.reason == "what the user types or drags isn't an entry yet")
    )");
}

TEST_F(AuditTest, WhereAllIsInStepNothingIsStale) {
    runOnDashboard("assert(#wb.audit().stale == 0)");
}

TEST_F(AuditTest, AFindingIsNotStaleAsWell) {
    runOnDashboard(std::string(kUnreadFade) + R"(
        local report = wb.audit()
        assert(#report > 0 and #report.stale == 0)
    )");
}

TEST_F(AuditTest, EveryControlOfTheModuleHasARule) {
    for (const ToolbarControlRow& row : kToolbarControls)
        EXPECT_TRUE(hasAuditRule(toUtf8(row.name))) << toUtf8(row.name);
    for (const char* name :
         {"LayerLockTransparencySliderControl", "LayerFilterComboControl", "LayerStateComboControl",
          "TextHeightComboControl", "3DNavZoomSliderControl", "3DNavStepSizeSliderControl",
          "3DNavStepsPerSecSliderControl", "3DNavViewComboCtrl", "3DNavPointTriplet1",
          "3DNavPointTriplet2"})
        EXPECT_TRUE(hasAuditRule(name)) << name;
    EXPECT_FALSE(hasAuditRule("NoSuchControl"));
}

}  // namespace
}  // namespace workbench::script
