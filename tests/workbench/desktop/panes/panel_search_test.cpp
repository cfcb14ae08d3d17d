#include "workbench/desktop/panes/panel_search.h"

#include "tests/workbench/desktop/mirror/mirror_fixture.h"
#include "workbench/toolkit/tool_panel_item_record.h"

namespace workbench::desktop {

class PanelSearchTest : public MirrorTest {
protected:
    std::vector<std::string> find(const char* text) {
        std::vector<std::string> labels;
        for (const SearchHit& hit : searchPanels(m_workbench, QString::fromLatin1(text)))
            labels.push_back(hit.label.toStdString());
        return labels;
    }
    SearchHit first(const char* text) {
        const auto hits = searchPanels(m_workbench, QString::fromLatin1(text));
        return hits.empty() ? SearchHit() : hits.front();
    }
};

TEST_F(PanelSearchTest, ToolsAreFoundByNameWithoutRegardToCase) {
    const SearchHit hit = first("PERSPECTIVE proj");
    EXPECT_EQ(hit.label.toStdString(), "Perspective projection \u2013 3D navigation");
    EXPECT_EQ(hit.item, L"ID_Perspective_Projection");
    EXPECT_EQ(hit.panel, L"Navigation");
    EXPECT_TRUE(hit.isAtHead);
}

TEST_F(PanelSearchTest, ToolsAreFoundByIdAndInFlyouts) {
    EXPECT_EQ(first("ID_CAMERAS_OnOf").item, L"ID_CAMERAS_OnOf");
    bool inFlyout = false;
    for (const CQrUiToolPanelItem* tool : allItems()) {
        if (tool->m_record->flyout == nullptr)
            continue;
        inFlyout = true;
        EXPECT_EQ(first(toUtf8(knownId(*tool)).c_str()).item, knownId(*tool));
        break;
    }
    EXPECT_TRUE(inFlyout);
}

TEST_F(PanelSearchTest, ControlsAreFoundByNameAndByTooltip) {
    EXPECT_EQ(first("3DNavZoomSliderControl").control, "3DNavZoomSliderControl");
    EXPECT_EQ(first("field of view").control, "3DNavZoomSliderControl");
    EXPECT_EQ(first("layercontrol").control, "LayerControl");
}

TEST_F(PanelSearchTest, NamesThatBeginWithTheTextComeFirst) {
    const std::vector<std::string> labels = find("zoom");
    ASSERT_FALSE(labels.empty());
    EXPECT_EQ(labels.front().rfind("Zoom", 0), 0U) << labels.front();
}

TEST_F(PanelSearchTest, APanelsTitleFindsAllOnIt) {
    EXPECT_GT(find("3d navigation").size(), 10U);
}

TEST_F(PanelSearchTest, NothingIsFoundForNothingAndForNonsense) {
    EXPECT_TRUE(find("").empty());
    EXPECT_TRUE(find("   ").empty());
    EXPECT_TRUE(find("qqqq").empty());
}

}  // namespace workbench::desktop
