#include "controls/row_items.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/toolkit/lookup.h"

#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/window/frame.h>

#include <memory>

namespace {

class RowItemsTest : public PaletteTest {
protected:
    void SetUp() override {
        load();
        ASSERT_TRUE(m_row.Create(WS_CHILD | WS_VISIBLE, {0, 0, 200, 30}, AfxGetMainWnd(), 900, 0));
    }
    void TearDown() override {
        m_panel.reset();
        PaletteTest::TearDown();
    }
    std::unique_ptr<CQrUiToolPanel> m_panel = std::make_unique<CQrUiToolPanel>();
    CQrUiToolPanel& m_row = *m_panel;
};

TEST_F(RowItemsTest, ItemsAreAppendedWithTheirTypesAndIds) {
    CQrUiToolPanel inner;
    ASSERT_TRUE(inner.Create(WS_CHILD | WS_VISIBLE, {0, 0, 20, 20}, &m_row, 1, 0));
    EXPECT_EQ(addRowBreakItem(&m_row), 1);
    EXPECT_EQ(addSeparatorItem(&m_row), 1);
    EXPECT_EQ(addControlItem(&m_row, inner.m_hWnd), 1);
    ASSERT_EQ(m_row.GetToolPanelItemCount(), 3);
    EXPECT_EQ(m_row.GetToolPanelItem(0)->GetType(), kItemRowBreak);
    EXPECT_EQ(m_row.GetToolPanelItem(0)->GetID(), L"TPB_VXDA_SLIDER_ROWBREAK");
    EXPECT_EQ(m_row.GetToolPanelItem(1)->GetType(), kItemSeparator);
    EXPECT_EQ(m_row.GetToolPanelItem(1)->GetID(), L"TPB_VXDA_SLIDER_SEPARATOR");
    EXPECT_EQ(m_row.GetToolPanelItem(2)->GetType(), kItemControl);
    EXPECT_EQ(m_row.GetToolPanelItem(2)->GetControl(), inner.m_hWnd);
    inner.DestroyWindow();
}

TEST_F(RowItemsTest, NoControlOrNoWindowAddsNothing) {
    EXPECT_EQ(addRowBreakItem(nullptr), 0);
    EXPECT_EQ(addSeparatorItem(nullptr), 0);
    EXPECT_EQ(addControlItem(nullptr, m_row.m_hWnd), 0);
    EXPECT_EQ(addControlItem(&m_row, nullptr), 0);
    EXPECT_EQ(addIconItem(nullptr, L"TPB_X", L"RCDATA_X"), nullptr);
    EXPECT_EQ(m_row.GetToolPanelItemCount(), 0);
}

TEST_F(RowItemsTest, IconShowsThePictureOfItsKeyInBothSizes) {
    forget();
    const CQrUiToolPanelItem* icon =
        addIconItem(&m_row, L"TPB_X", L"RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON");
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(icon->GetType(), kItemButton);
    EXPECT_EQ(icon->GetID(), L"TPB_X");
    EXPECT_EQ(workbench::viewOf(bench().toolkit(), *icon).image,
              "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON");
    EXPECT_EQ(callCount("QrUiLoadImageFromResource"), 2);
}

TEST_F(RowItemsTest, UnknownKeyLeavesTheIconWithoutAPicture) {
    const CQrUiToolPanelItem* icon = addIconItem(&m_row, L"TPB_X", L"RCDATA_NO_SUCH_PICTURE");
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(workbench::viewOf(bench().toolkit(), *icon).image, "");
}

TEST_F(RowItemsTest, KeyWithAnExtensionNamesAFile) {
    forget();
    addIconItem(&m_row, L"TPB_X", L"nowhere.bmp");
    EXPECT_EQ(callCount("LoadBitmapFileGdiPlus"), 2);
    EXPECT_EQ(callCount("QrUiLoadImageFromResource"), 0);
}

}  // namespace
