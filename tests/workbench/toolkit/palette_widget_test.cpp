#include "workbench/toolkit/palette_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/toolkit/input_messages.h"

namespace workbench {
namespace {

class PaletteWidgetTest : public ToolkitTest {};

TEST_F(PaletteWidgetTest, ContextMenusAndTheWheelGoToTheSet) {
    m_palette->SendMessage(kContextMenuMessage);
    m_palette->SendMessage(kMouseWheel);
    EXPECT_EQ(m_set->of(kContextMenuMessage).size(), 1U);
    EXPECT_EQ(m_set->of(kMouseWheel).size(), 1U);
}

TEST_F(PaletteWidgetTest, OtherMessagesStay) {
    m_palette->SendMessage(WM_QRUI_POSITION);
    EXPECT_TRUE(m_set->of(WM_QRUI_POSITION).empty());
}

}  // namespace
}  // namespace workbench
