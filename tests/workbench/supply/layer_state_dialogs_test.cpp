#include "tests/support/call_lines.h"
#include "tests/workbench/editor/editor_fixture.h"

#include <hostapi/window/wnd.h>
#include <hostapi/zorq/layers.h>

namespace workbench {

class LayerStateDialogFunctionsTest : public EditorTest {
protected:
    LayerStateDialogFunctionsTest() { newDocument(); }
    void answer(const Value::Table& table) { editor().answers().queue("dialog", table); }
};

TEST_F(LayerStateDialogFunctionsTest, AChoiceIs1AndAnythingElse0) {
    EXPECT_EQ(vxedLayerStateSaveDialog(nullptr), 0);
    answer({{"name", "Plan"}});
    EXPECT_EQ(vxedLayerStateSaveDialog(nullptr), 1);
    answer({});
    EXPECT_EQ(vxedLayerStateManagerDialog(nullptr), 0);
    answer({{"name", "Plan"}});
    EXPECT_EQ(vxedLayerStateManagerDialog(nullptr), 1);
}

TEST_F(LayerStateDialogFunctionsTest, TheOwnerIsNoted) {
    CWnd owner;
    m_bench.journal().take();
    vxedLayerStateManagerDialog(&owner);
    vxedLayerStateSaveDialog(nullptr);
    EXPECT_EQ(support::callLines(m_bench.journal().take()),
              (Lines{"vxedLayerStateManagerDialog(object)", "vxedLayerStateSaveDialog(null)"}));
}

TEST_F(LayerStateDialogFunctionsTest, ACallThatFailsOpensNothing) {
    m_bench.journal().take();
    m_bench.faults().fail("vxedLayerStateManagerDialog", {}, 1);
    m_bench.faults().fail("vxedLayerStateSaveDialog", 1, 1);
    EXPECT_EQ(vxedLayerStateManagerDialog(nullptr), 0);
    EXPECT_EQ(vxedLayerStateSaveDialog(nullptr), 1);
    EXPECT_EQ(fields("dialog", "name"), Lines{});
}

}  // namespace workbench
