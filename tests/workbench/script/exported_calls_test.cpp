#include "workbench/script/exported_calls.h"

#include "tests/workbench/script/script_fixture.h"

namespace workbench::script {

namespace {

class ExportedCallsTest : public ScriptTest {};

TEST_F(ExportedCallsTest, ModuleMustBeLoaded) {
    EXPECT_EQ(complaintOf("wb.export('VxDaInvalidateDashboard')"),
              "wb.export: the dashboard module is not loaded");
}

TEST_F(ExportedCallsTest, UnknownFunctionIsNamed) {
    EXPECT_EQ(complaintOf("wb.load() wb.export('VxDaNothing')"),
              "wb.export: the module exports no VxDaNothing");
}

TEST_F(ExportedCallsTest, VisiblePanelsComeAsPairsBehindTheAnswer) {
    runOnDashboard(R"(
        local answer, panels = wb.export("VxDaGetVisiblePanels")
        assert(answer == 1 and #panels == 11)
        assert(panels[1][1] == "Layers" and panels[1][2] == "ZORQ")
        assert(wb.export("VxDaSetVisiblePanels", {}) == 1)
        answer, panels = wb.export("VxDaGetVisiblePanels")
        assert(answer == 1 and #panels == 0)
    )");
}

TEST_F(ExportedCallsTest, PanelsThatAreNoPairsAreRefused) {
    for (const char* panels : {"'Layers'", "{'Layers'}", "{{'Layers'}}", "{{'Layers', 1}}"}) {
        EXPECT_EQ(
            complaintOf("wb.load() wb.export('VxDaSetVisiblePanels', " + std::string(panels) + ")"),
            "wb.export: argument 2 must be a list of {panel, group}");
    }
}

TEST_F(ExportedCallsTest, ItemsOfAnIdAreCounted) {
    runOnDashboard(R"(
        assert(wb.export("VxDaGetToolPanelItems", "HT_WALL") == 2)
        assert(wb.export("VxDaGetToolPanelItems", "None") == nil)
        assert(wb.export("VxDaGetToolPanelItems") == nil)
    )");
}

TEST_F(ExportedCallsTest, CustomControlIsMadeInAPanelAndNamed) {
    runOnDashboard(R"(
        local name = "LayerLockTransparencySliderControl"
        assert(math.type(wb.export("VxDaGetCustomControl", name, "Light")) == "integer")
        assert(wb.control(name, 2):slider() == 50)
        assert(wb.export("VxDaGetCustomControl", "NoControl", "Light") == nil)
    )");
}

TEST_F(ExportedCallsTest, TheOthersAnswerAsTheModuleDoes) {
    runOnDashboard(R"(
        assert(wb.export("VxDaInvalidateDashboard") == 1)
        assert(wb.export("VxDaNotifyDashboard", 3) == 1)
        assert(wb.export("vxrxEntryPoint", 99) == 0)
        assert(math.type(wb.export("vxrxGetApiVersion")) == "integer")
        wb.export("setForce3DNavUpdate", true)
        assert(not pcall(wb.export, "setForce3DNavUpdate", 1))
    )");
}

}  // namespace

}  // namespace workbench::script
