#include "workbench/toolkit/container_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

class ContainerWidgetTest : public ToolkitTest {
protected:
    ContainerWidgetTest() {
        m_strip.Create(WS_CHILD | WS_VISIBLE, {0, 0, 106, 30}, m_toolPanel, 7);
        for (UINT id = 1; id <= 3; ++id) {
            auto field = std::make_unique<CQrUiInputEditCtrl>();
            field->Create(WS_CHILD | WS_VISIBLE, {0, 0, 16, 16}, &m_strip, id, 0);
            m_strip.AddItem(field.release());
        }
    }
    CRect place(int index) { return windows().find(m_strip.GetItem(index)->m_hWnd)->rect; }

    CQrUiCtrlContainer m_strip;
};

TEST_F(ContainerWidgetTest, ControlsStandSideBySideWithTheMarginBetween) {
    m_strip.SetMargin(3);
    EXPECT_EQ(place(0), (CRect{0, 0, 33, 16}));
    EXPECT_EQ(place(1), (CRect{36, 0, 69, 16}));
    EXPECT_EQ(place(2), (CRect{72, 0, 106, 16}));
}

TEST_F(ContainerWidgetTest, NewWidthIsSharedAnew) {
    m_strip.SetWindowPos(0, 0, 300, 30, SWP_NOMOVE);
    EXPECT_EQ(place(2).right, 300);
    EXPECT_EQ(place(0).Width(), 100);
}

TEST_F(ContainerWidgetTest, RowNeedsTheHeightOfItsControls) {
    const Window& window = *windows().find(m_strip.m_hWnd);
    EXPECT_EQ(windows().widgetOf<ContainerWidget>(&m_strip)->naturalHeight(window, 100), 16);
}

TEST_F(ContainerWidgetTest, ControlsEndWithTheWindow) {
    const std::size_t before = windows().count();
    m_strip.DestroyWindow();
    EXPECT_EQ(windows().count(), before - 4);
    EXPECT_EQ(m_strip.GetItemCount(), 0);
    EXPECT_EQ(m_strip.GetItem(0), nullptr);
}

}  // namespace
}  // namespace workbench
