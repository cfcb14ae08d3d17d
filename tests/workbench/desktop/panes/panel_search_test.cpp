#include "workbench/desktop/panes/panel_search.h"

#include "tests/support/bench.h"
#include "workbench/base/text.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace workbench::desktop {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class PanelSearchTest : public support::Bench {
protected:
    PanelSearchTest() { showDashboard(); }

    std::vector<SearchHit> find(const char* text) {
        return searchPanels(bench().toolkit(), QString::fromUtf8(text));
    }
    /// What was found, as "tool" or "control".
    std::vector<std::string> labels(const char* text) {
        std::vector<std::string> found;
        for (const SearchHit& hit : find(text))
            found.push_back(hit.label.toStdString());
        return found;
    }
};

}  // namespace

TEST_F(PanelSearchTest, AToolIsFoundByItsNameInAnyCase) {
    const std::vector<SearchHit> hits = find("wALK aNd fly");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].label, QStringLiteral("Walk and fly settings"));
    EXPECT_EQ(hits[0].panel, L"Navigation");
    EXPECT_EQ(hits[0].panelTitle, QStringLiteral("3D navigation"));
    EXPECT_EQ(hits[0].item, L"ID_3DWalk_Settings");
    EXPECT_EQ(hits[0].control, "");
}

TEST_F(PanelSearchTest, AToolIsFoundByItsId) {
    EXPECT_THAT(labels("id_3dcorbit"), ElementsAre("Continuous orbit"));
}

TEST_F(PanelSearchTest, AControlIsFoundByItsNameAndByItsTooltip) {
    const std::vector<SearchHit> byName = find("LayerLockTransparency");
    ASSERT_EQ(byName.size(), 1U);
    EXPECT_EQ(byName[0].label, QStringLiteral("Locked layer fading"));
    EXPECT_EQ(byName[0].panel, L"Layers");
    EXPECT_EQ(byName[0].control, "LayerLockTransparencySliderControl");
    EXPECT_EQ(byName[0].item, L"");
    EXPECT_THAT(labels("fading"), ElementsAre("Locked layer fading"));
}

TEST_F(PanelSearchTest, AControlWithoutTooltipSaysWhatItLists) {
    EXPECT_THAT(labels("UCSControl"), ElementsAre("UCS"));
    EXPECT_THAT(labels("LineWeightControl"), ElementsAre("Line weight"));
    EXPECT_THAT(labels("OPTColorControl"), ElementsAre("Colour"));
    EXPECT_THAT(labels("3DNavViewComboCtrl"), ElementsAre("Views")) << "its head is a step back";
}

TEST_F(PanelSearchTest, NoLabelIsANameForProgramsOnly) {
    std::size_t controls = 0;
    for (const char* letter : {"a", "e", "i", "o", "u"}) {
        for (const SearchHit& hit : find(letter)) {
            EXPECT_FALSE(hit.label.isEmpty()) << hit.control << toUtf8(hit.item);
            EXPECT_FALSE(hit.panelTitle.isEmpty()) << hit.label.toStdString();
            EXPECT_NE(hit.label.toStdString(), hit.control);
            EXPECT_NE(hit.label.toStdWString(), hit.item);
            for (const char* part : {"Control", "Ctrl", "ID_", "TPL_", "^C", "&", "\n"})
                EXPECT_FALSE(hit.label.contains(QLatin1String(part))) << hit.label.toStdString();
            controls += hit.control.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(controls, 20U);
}

TEST_F(PanelSearchTest, MarksOfAccessKeysAreNotShown) {
    item(L"ID_GeoLocation")->SetName(L"&Geographic loc&ation");
    bench().windows().find(panel(L"Sun")->m_hWnd)->text = L"S&un && sky & more";
    const std::vector<SearchHit> hits = find("geographic location");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].label, QStringLiteral("Geographic location"));
    EXPECT_EQ(hits[0].panelTitle, QStringLiteral("Sun & sky & more"));
}

TEST_F(PanelSearchTest, WordsMayStandInNameAndPanelTitle) {
    EXPECT_THAT(labels("navigation walk"), ElementsAre("Walk", "Walk and fly settings"));
    EXPECT_THAT(labels("walk sun"), IsEmpty());
}

TEST_F(PanelSearchTest, APanelTitleFindsAllThatStandsOnIt) {
    for (const SearchHit& hit : find("animation"))
        EXPECT_EQ(hit.panel, L"Animation") << hit.label.toStdString();
    EXPECT_THAT(labels("animation"), Contains("Animation settings"));
}

TEST_F(PanelSearchTest, ToolsInFlyoutsAreFound) {
    const std::vector<SearchHit> hits = find("generic lighting units");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].item, L"ID_LightingUnitsGeneric");
    EXPECT_EQ(hits[0].panel, L"Light");
}

TEST_F(PanelSearchTest, NamesThatBeginWithTheTextComeFirst) {
    const std::vector<std::string> found = labels("light");
    ASSERT_GE(found.size(), 4U);
    const std::vector<std::string> best(found.begin(), found.begin() + 4);
    EXPECT_THAT(best, ElementsAre("Lighting quality", "Light glyphs", "Lighting units",
                                  "Faceted lighting"));
    // Its ID has the word, its name doesn't.
    EXPECT_EQ(found.back(), "Sky as background");
}

TEST_F(PanelSearchTest, PanelsThatAreNotOnScreenAreSearched) {
    panel(L"Sun")->ShowWindow(SW_HIDE);
    EXPECT_THAT(labels("geographic location"), ElementsAre("Geographic location"));
}

TEST_F(PanelSearchTest, ToolsThatTheDashboardHidesAreNot) {
    item(L"ID_GeoLocation")->SetState(kItemHidden);
    EXPECT_THAT(labels("geographic location"), IsEmpty());
    item(L"TPL_0042")->SetState(kItemHidden);
    EXPECT_THAT(labels("light"), Not(Contains("Generic lighting units")));
}

TEST_F(PanelSearchTest, ABlankTextFindsNothing) {
    EXPECT_THAT(find(""), IsEmpty());
    EXPECT_THAT(find("  "), IsEmpty());
    EXPECT_THAT(labels("no such tool"), IsEmpty());
}

TEST_F(PanelSearchTest, WithoutPanelsNothingIsFound) {
    ASSERT_TRUE(unload());
    EXPECT_THAT(find("light"), IsEmpty());
}

TEST_F(PanelSearchTest, ASearchIsNoCallOfAModule) {
    takeJournal();
    find("light");
    EXPECT_THAT(takeJournal(), IsEmpty());
}

}  // namespace workbench::desktop
