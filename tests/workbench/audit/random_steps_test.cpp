#include "tests/workbench/script/script_fixture.h"

namespace workbench::script {
namespace {

/// Works on the dashboard at random, from a seed, and compares what is on show with the host's state
/// after every thousand steps.
constexpr const char* kRandomWork = R"(
    math.randomseed(seed)
    local function any(list) return list[math.random(#list)] end
    local sliders = {"LayerLockTransparencySliderControl", "3DNavZoomSliderControl",
                     "3DNavStepSizeSliderControl", "3DNavStepsPerSecSliderControl"}
    local points = {"3DNavPointTriplet1", "3DNavPointTriplet2"}
    local tools = {"ID_DefaultLighting", "ID_Perspective_Projection", "ID_Parallel_Projection",
                   "ID_3DWalk", "ID_3DOrbit", "ID_Animation_Record", "ID_Animation_Pause",
                   "ID_Skylight_Background", "ID_Skylight_Off", "ID_LightingUnitsGeneric"}
    local numbers = {"1", "35", "60", "85", "0.5", "1000", "none", "", "-3"}
    local variables = {{"LAYLOCKFADECTL", -90, 90}, {"PERSPECTIVE", 0, 1}, {"LUPREC", 0, 8},
                       {"AUPREC", 0, 8}, {"LIGHTINGUNITS", 0, 2}, {"CAMERADISPLAY", 0, 1},
                       {"TILEMODE", 0, 1}, {"TEXTSIZE", 1, 9}, {"LAYEREVAL", 0, 2}}
    local open = 1
    local steps = {
        function()
            local control = wb.control(any(sliders))
            if control and control:visible() then
                local low, high = control:range()
                control:drag(math.random(low, high), math.random(low, high))
                control:release()
            end
        end,
        function()
            local control = wb.control(any(sliders))
            if control and control:visible() then control:enter(any(numbers)) end
        end,
        function()
            local control = wb.control(any(points))
            if control and control:visible() then control:enter(any(numbers), any{"x", "y", "z"}) end
        end,
        function()
            local item = wb.item(any(tools))
            if item then item:click() end
        end,
        function()
            local list = wb.control(any{"LayerStateComboControl", "TextHeightComboControl"})
            if list and list:visible() then list:pick(math.random(0, #list:items() - 1)) end
        end,
        function()
            local filters = wb.control("LayerFilterComboControl")
            if filters and filters:visible() then
                filters:click()
                filters:node(any{"All", "All/All Used Layers"}):click()
            end
        end,
        function()
            local row = any(variables)
            wb.set(row[1], math.random(row[2], row[3]))
        end,
        function() wb.type(any{"U\n", "REDO\n", "\27", "ZOOM\nE\n", "-VIEW\n_top\n", "LINE\n0,0\n"}) end,
        function() wb.idle(1) end,
        function() wb.wait(200) end,
        function()
            if math.random(4) == 1 and open < 3 then
                open = open + 1
                wb.new("D" .. open)
            else
                wb.activate(any{"A", "D" .. open > "D1" and "D" .. open or "A"})
            end
        end,
        function() wb.panel("Layers"):menu("Hide") wb.notify(2) end,
    }
    for round = 1, rounds do
        local done = 0
        for step = 1, 1000 do
            if pcall(any(steps)) then done = done + 1 end
        end
        assert(done >= 500, "only " .. done .. " steps could be made")
        wb.type("\27\27\27")
        local steps = wb.control("3DNavStepSizeSliderControl")
        if steps then steps:blur() end
        wb.wait(1000)
        wb.idle(2)
        for _, found in ipairs(wb.audit()) do
            error("round " .. round .. ": " .. found.control .. ": " .. found.field .. " shows "
                  .. found.shown .. " for " .. found.expected)
        end
        wb.journal()
        wb.sent()
    end
)";

class RandomStepsTest : public ScriptTest, public testing::WithParamInterface<int> {};

TEST_P(RandomStepsTest, LeaveNothingOnShowThatIsNotSo) {
    runOnDashboard("local seed, rounds = " + std::to_string(GetParam()) + ", 3 " + kRandomWork);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomStepsTest, testing::Values(1, 2, 3),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace workbench::script
