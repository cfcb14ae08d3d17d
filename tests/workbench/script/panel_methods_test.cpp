#include "tests/workbench/script/script_fixture.h"
#include "workbench/script/handles.h"

namespace workbench::script {

namespace {

class PanelMethodsTest : public ScriptTest {};

TEST_F(PanelMethodsTest, MenuIsReadAsLinesWithTheirMarks) {
    runOnDashboard(R"(
        local lines, _, checks = wb.panel("Layers"):menu()
        local found = {}
        for _, line in ipairs(lines) do found[line] = true end
        assert(lines[1] == "Collapse" and lines[2] == "-")
        assert(found["Panels"] and found["Panels/Light"] and found["Hide"])
        assert(checks["Panels/Light"] == true and checks["Hide"] == nil)
    )");
}

TEST_F(PanelMethodsTest, DisabledLinesAreMarkedByNumberAndByText) {
    runOnDashboard(R"(
        local lines, disabled = wb.panel("Layers"):menu()
        for number, line in ipairs(lines) do
            if line ~= "-" then assert(disabled[number] == disabled[line], line) end
        end
        assert(not disabled["Hide"])
    )");
}

TEST_F(PanelMethodsTest, LineIsChosenByItsNumber) {
    runOnDashboard(R"(
        local layers = wb.panel("Layers")
        local lines = layers:menu()
        for number, line in ipairs(lines) do
            if line == "Panels/Light" then layers:menu(number) break end
        end
        assert(not wb.panel("Light"):visible())
        for _, number in ipairs({0, -1, #lines + 1}) do
            local done, reason = pcall(layers.menu, layers, number)
            assert(not done and reason:find("the menu has no line", 1, true))
        end
    )");
}

TEST_F(PanelMethodsTest, ReadingTheMenuChangesNothing) {
    runOnDashboard(R"(
        local before = wb.tree()
        wb.panel("Layers"):menu()
        assert(wb.tree() == before)
    )");
}

TEST_F(PanelMethodsTest, LineIsChosenByItsPath) {
    runOnDashboard(R"(
        wb.panel("Layers"):menu("Panels/Light")
        assert(not wb.panel("Light"):visible())
        wb.panel("Layers"):menu("Panels/Light")
        assert(wb.panel("Light"):visible())
    )");
}

TEST_F(PanelMethodsTest, LineThatIsntThereIsNamed) {
    runOnDashboard(R"(
        local layers = wb.panel("Layers")
        local done, reason = pcall(layers.menu, layers, "Panels/Nowhere")
        assert(not done and reason:find('the menu has no line "Panels/Nowhere"', 1, true))
    )");
}

TEST_F(PanelMethodsTest, PanelThatIsntOnShowHasNoMenu) {
    runOnDashboard(R"(
        local light = wb.panel("Light")
        light:menu("Hide")
        assert(not light:visible())
        assert(not pcall(light.menu, light))
    )");
}

}  // namespace

}  // namespace workbench::script
