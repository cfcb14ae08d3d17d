#include "tests/workbench/script/script_fixture.h"
#include "workbench/script/calls.h"

namespace workbench::script {

namespace {

class DashboardCallsTest : public ScriptTest {};

TEST_F(DashboardCallsTest, ThingsAreFoundByName) {
    runOnDashboard(R"(
        assert(wb.panel("Layers") and wb.item("ID_3DWalk"))
        assert(wb.control("LayerLockTransparencySliderControl"))
    )");
}

TEST_F(DashboardCallsTest, ThingThatIsntThereIsNil) {
    runOnDashboard(R"(
        assert(wb.panel("None") == nil and wb.item("None") == nil and wb.control("None") == nil)
    )");
    run("wb.unload() assert(wb.panel('Layers') == nil and wb.item('ID_3DWalk') == nil)");
}

TEST_F(DashboardCallsTest, SameNameIsToldApartByNumber) {
    runOnDashboard(R"(
        assert(wb.item("HT_WALL") and wb.item("HT_WALL", 2))
        assert(wb.item("HT_WALL", 3) == nil)
        assert(wb.panel("Layers", 2) == nil)
        assert(wb.control("LayerLockTransparencySliderControl", 2) == nil)
    )");
}

TEST_F(DashboardCallsTest, NumbersBeginAtOne) {
    EXPECT_EQ(complaintOf("wb.item('ID_3DWalk', 0)"), "wb.item: argument 2 must be 1 or more");
    EXPECT_EQ(complaintOf("wb.control('x', -1)"), "wb.control: argument 2 must be 1 or more");
}

TEST_F(DashboardCallsTest, TreeShowsAllWindows) {
    runOnDashboard(R"(
        local tree = wb.tree()
        assert(tree:find("[DrawingView]", 1, true))
        assert(tree:find("[LayerLockTransparencySliderControl]", 1, true))
        assert(tree:find("position 50 of 0 to 90", 1, true))
    )");
}

}  // namespace

}  // namespace workbench::script
