#include "controls/row_items.h"

#include "tests/palette/palette_fixture.h"
#include "tests/resources/loaded_module.h"
#include "tests/support/call_lines.h"
#include "workbench/resources/resource_library.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/picture_table.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/window/frame.h>

#include <memory>
#include <string>
#include <vector>

namespace {

/// The bytes of a picture.
std::string bytesOfAPicture() {
    const LoadedModule module("VxDashboardRes.dll");
    const auto picture = workbench::ResourceLibrary(module.directory())
                             .findPicture("RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON", 16);
    return {reinterpret_cast<const char*>(picture->data), picture->length};
}

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
    std::string largeImageOf(const CQrUiToolPanelItem& item) {
        return bench().toolkit().pictures().source(item.m_record->largeImage);
    }
    std::vector<std::string> calls(const std::vector<std::string_view>& names) {
        return support::callLines(bench().journal().records(), names);
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
    EXPECT_EQ(m_row.GetToolPanelItem(1)->m_record->style, 4U) << "drawn as a gap";
    EXPECT_EQ(m_row.GetToolPanelItem(2)->GetType(), kItemControl);
    EXPECT_EQ(m_row.GetToolPanelItem(2)->GetControl(), inner.m_hWnd);
    inner.DestroyWindow();
}

TEST_F(RowItemsTest, ItemsKnowTheControlThatTheyStandOn) {
    addRowBreakItem(&m_row);
    addSeparatorItem(&m_row);
    addControlItem(&m_row, m_row.m_hWnd);
    addIconItem(&m_row, L"TPB_X", L"RCDATA_NO_SUCH_PICTURE");
    ASSERT_EQ(m_row.GetToolPanelItemCount(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(m_row.GetToolPanelItem(i)->m_record->toolPanel, &m_row) << i;
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
    EXPECT_EQ(largeImageOf(*icon), "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON");
    const std::string start =
        "QrUiLoadImageFromResource(\"VxDashboardRes.dll\", "
        "\"RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON\", ";
    EXPECT_EQ(calls({"QrUiLoadImageFromResource"}),
              (std::vector<std::string>{start + "16, -1)", start + "32, -1)"}));
    EXPECT_EQ(m_row.GetToolPanelItem(0), icon);
}

TEST_F(RowItemsTest, PictureThatIsMissingLeavesTheEarlierOneInBothSizes) {
    CQrUiToolPanelItem* icon =
        addIconItem(&m_row, L"TPB_X", L"RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON");
    setItemImages(*icon, L"RCDATA_NO_SUCH_PICTURE");
    EXPECT_EQ(workbench::viewOf(bench().toolkit(), *icon).image,
              "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON");
    EXPECT_EQ(largeImageOf(*icon), "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON");
}

TEST_F(RowItemsTest, UnknownKeyLeavesTheIconWithoutAPicture) {
    const CQrUiToolPanelItem* icon = addIconItem(&m_row, L"TPB_X", L"RCDATA_NO_SUCH_PICTURE");
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(workbench::viewOf(bench().toolkit(), *icon).image, "");
}

TEST_F(RowItemsTest, KeyWithAnExtensionNamesAFile) {
    const std::string file = writeFile("icon.png", bytesOfAPicture()).string();
    forget();
    const CQrUiToolPanelItem* icon =
        addIconItem(&m_row, L"TPB_X", VxString(file.begin(), file.end()).c_str());
    EXPECT_EQ(workbench::viewOf(bench().toolkit(), *icon).image, file);
    EXPECT_EQ(largeImageOf(*icon), file);
    const std::string call = "LoadBitmapFileGdiPlus(\"" + file + "\")";
    EXPECT_EQ(calls({"LoadBitmapFileGdiPlus", "QrUiLoadImageFromResource"}),
              (std::vector<std::string>{call, call}));
}

}  // namespace
