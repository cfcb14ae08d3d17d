#include "light/light_toolbar.h"

#include "module/manager.h"
#include "module/module.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/bench.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/variables/sky_status.h"
#include "workbench/toolkit/lookup.h"

#include <ostream>
#include <string>
#include <vector>

namespace {

class LightToolbarTest : public support::Bench {
protected:
    void SetUp() override { showDashboard(); }
    workbench::ItemView view(const wchar_t* id) {
        return workbench::viewOf(bench().toolkit(), *item(id));
    }
};

TEST_F(LightToolbarTest, GenericUnitsOfferTheDistantLightAndHideTheSkyFlyout) {
    set(L"LIGHTINGUNITS", 1);
    set(L"LIGHTINGUNITS", 0);
    EXPECT_TRUE(view(L"ID_Adjust_Exposure").disabled);
    EXPECT_FALSE(view(L"ID_DistantLight").disabled);
    EXPECT_TRUE(view(L"TPL_0030").hidden);
}

TEST_F(LightToolbarTest, PhotometricUnitsOfferTheExposureAndShowTheSkyFlyout) {
    set(L"LIGHTINGUNITS", 0);
    set(L"LIGHTINGUNITS", 2);
    EXPECT_FALSE(view(L"ID_Adjust_Exposure").disabled);
    EXPECT_TRUE(view(L"ID_DistantLight").disabled);
    EXPECT_FALSE(view(L"TPL_0030").hidden);
}

TEST_F(LightToolbarTest, PaperSpaceDisablesTheSkyTools) {
    set(L"TILEMODE", 0);
    set(L"LIGHTINGUNITS", 1);
    for (const wchar_t* id :
         {L"ID_Skylight_Off", L"ID_Skylight_Background", L"ID_Skylight_Illumination"}) {
        EXPECT_TRUE(view(id).disabled);
    }
    set(L"TILEMODE", 1);
    set(L"LIGHTINGUNITS", 2);
    EXPECT_FALSE(view(L"ID_Skylight_Off").disabled);
}

TEST_F(LightToolbarTest, UnreadableUnitsCountAsPhotometricAndSelectTheGenericTool) {
    set(L"LIGHTINGUNITS", 1);
    set(L"LIGHTINGUNITS", 0);
    ASSERT_TRUE(view(L"TPL_0030").hidden);
    fail("vxedGetVar:LIGHTINGUNITS");
    bench().editor().reactors().sysVarChanged(L"LIGHTINGUNITS", true);
    EXPECT_FALSE(view(L"ID_Adjust_Exposure").disabled);
    EXPECT_TRUE(view(L"ID_DistantLight").disabled);
    EXPECT_FALSE(view(L"TPL_0030").hidden);
    EXPECT_EQ(view(L"TPL_0042").tool, L"ID_LightingUnitsGeneric");
}

TEST_F(LightToolbarTest, NameOfTheVariableIsTakenWithoutRegardToCase) {
    set(L"LIGHTINGUNITS", 1);
    fail("vxedGetVar:LIGHTINGUNITS");
    bench().editor().reactors().sysVarChanged(L"LightingUnits", true);
    EXPECT_EQ(view(L"TPL_0042").tool, L"ID_LightingUnitsGeneric");
}

TEST_F(LightToolbarTest, WithoutAWorkingDatabaseTheFlyoutsStayAsTheyWere) {
    set(L"LIGHTINGUNITS", 1);
    ASSERT_EQ(view(L"TPL_0042").tool, L"ID_LightingUnitsAmerican");
    fail("vxdbHostApplicationServices");
    set(L"LIGHTINGUNITS", 2);
    EXPECT_EQ(view(L"TPL_0042").tool, L"ID_LightingUnitsAmerican");
    EXPECT_TRUE(view(L"ID_DistantLight").disabled);
}

TEST_F(LightToolbarTest, SkyThatCannotBeReadLeavesItsFlyoutAlone) {
    type(L"SKYSTATUS\n2\n");
    set(L"LIGHTINGUNITS", 1);
    ASSERT_EQ(view(L"TPL_0030").tool, L"ID_Skylight_Illumination");
    type(L"SKYSTATUS\n0\n");
    fail("vxdbOpenObject");
    set(L"LIGHTINGUNITS", 2);
    EXPECT_EQ(view(L"TPL_0030").tool, L"ID_Skylight_Illumination");
    EXPECT_EQ(view(L"TPL_0042").tool, L"ID_LightingUnitsSI");
}

TEST_F(LightToolbarTest, ViewportOnTheSheetLeavesTheSkyToolsLive) {
    openDrawing("examples/house.json");
    set(L"TILEMODE", 0);
    set(L"CVPORT", 2);
    set(L"LIGHTINGUNITS", 0);
    set(L"LIGHTINGUNITS", 1);
    EXPECT_FALSE(view(L"ID_Skylight_Off").disabled);
}

TEST_F(LightToolbarTest, WithoutPanelsNothingIsRead) {
    ASSERT_TRUE(unload());
    ASSERT_TRUE(load());
    set(L"LTSCALE", 2.0);
    takeJournal();
    bench().editor().reactors().sysVarChanged(L"LIGHTINGUNITS", true);
    EXPECT_TRUE(takeCalls().empty());
}

struct UnitsCase {
    int units;
    const wchar_t* tool;
};
class UnitsTest : public LightToolbarTest, public testing::WithParamInterface<UnitsCase> {};

TEST_P(UnitsTest, MakeTheirToolTheFlyoutsCurrentOne) {
    set(L"LIGHTINGUNITS", GetParam().units == 0 ? 1 : 0);
    set(L"LIGHTINGUNITS", GetParam().units);
    EXPECT_EQ(view(L"TPL_0042").tool, GetParam().tool);
}

INSTANTIATE_TEST_SUITE_P(Units, UnitsTest,
                         testing::Values(UnitsCase{0, L"ID_LightingUnitsGeneric"},
                                         UnitsCase{1, L"ID_LightingUnitsAmerican"},
                                         UnitsCase{2, L"ID_LightingUnitsSI"},
                                         UnitsCase{3, L"ID_LightingUnitsGeneric"}));

struct SkyToolCase {
    int status;
    const wchar_t* tool;
};
class SkyFlyoutTest : public LightToolbarTest, public testing::WithParamInterface<SkyToolCase> {};

TEST_P(SkyFlyoutTest, ShowsTheSkyOfTheView) {
    type(L"SKYSTATUS\n" + std::to_wstring(GetParam().status) + L"\n");
    set(L"LIGHTINGUNITS", 1);
    EXPECT_EQ(view(L"TPL_0030").tool, GetParam().tool);
}

INSTANTIATE_TEST_SUITE_P(States, SkyFlyoutTest,
                         testing::Values(SkyToolCase{0, L"ID_Skylight_Off"},
                                         SkyToolCase{1, L"ID_Skylight_Background"},
                                         SkyToolCase{2, L"ID_Skylight_Illumination"}));

// The toolbar, linked into the test

constexpr const char* kLightMenu = R"({
  "menuGroups": [{"name": "MAIN"}],
  "panels": [{"menuGroup": "MAIN", "id": "Lights", "title": "Lights", "toolPanels": ["Lights"]}],
  "workspaces": [{"name": "Work", "panels": [{"panel": "Lights", "menuGroup": "MAIN"}]}],
  "currentWorkspace": "Work",
  "toolPanels": [
    {"menuGroup": "MAIN", "id": "Lights", "items": [
      {"type": "button", "id": "ID_Adjust_Exposure"},
      {"type": "button", "id": "ID_DistantLight"},
      {"type": "button", "id": "LightSliderControl5"},
      {"type": "flyout", "id": "TPL_0030", "flyout": "Sky"},
      {"type": "flyout", "id": "TPL_0042", "flyout": "Units"}]},
    {"menuGroup": "MAIN", "id": "Sky", "items": [
      {"type": "button", "id": "ID_Skylight_Off"},
      {"type": "button", "id": "ID_Skylight_Background"},
      {"type": "button", "id": "ID_Skylight_Illumination"}]},
    {"menuGroup": "MAIN", "id": "Units", "items": [
      {"type": "button", "id": "ID_LightingUnitsGeneric"},
      {"type": "button", "id": "ID_LightingUnitsAmerican"},
      {"type": "button", "id": "ID_LightingUnitsSI"}]}]
})";

constexpr UINT kDisabled = 2;
constexpr UINT kHidden = 32;

/// The states of the items that follow the lighting units.
struct LightStates {
    UINT exposure;
    UINT distantLight;
    UINT midtones;
    UINT skyFlyout;
    UINT skyTools;  // of all three
    friend bool operator==(const LightStates&, const LightStates&) = default;
};

std::ostream& operator<<(std::ostream& stream, const LightStates& states) {
    return stream << states.exposure << ' ' << states.distantLight << ' ' << states.midtones << ' '
                  << states.skyFlyout << ' ' << states.skyTools;
}

class LinkedLightToolbarTest : public PaletteTest {
protected:
    LinkedLightToolbarTest() : PaletteTest(kLightMenu) {}
    void SetUp() override {
        show();
        // The first event of all reads the material mode too.
        set(L"LTSCALE", 2.0);
    }
    void set(const wchar_t* variable, const workbench::Value& value) {
        ASSERT_TRUE(bench().editor().set(variable, value));
    }
    UINT state(const wchar_t* id) { return item(id)->GetState(); }
    LightStates states() {
        const UINT sky = state(L"ID_Skylight_Off");
        EXPECT_EQ(state(L"ID_Skylight_Background"), sky);
        EXPECT_EQ(state(L"ID_Skylight_Illumination"), sky);
        return {state(L"ID_Adjust_Exposure"), state(L"ID_DistantLight"),
                state(L"LightSliderControl5"), state(L"TPL_0030"), sky};
    }
    /// What changed of the items, in order, such as "TPL_0030 hidden".
    std::vector<std::string> takeItemChanges() {
        std::vector<std::string> changes;
        for (const workbench::JournalRecord& record : bench().journal().take("item")) {
            changes.push_back(record.field("id").asString() + " " +
                              record.field("field").asString());
        }
        return changes;
    }
    std::vector<std::string> takeReads() {
        return takeLines({"vxedGetVar", "vxdbHostApplicationServices",
                          "VxDbHostApplicationServices::workingDatabase", "vxedActiveViewportId"});
    }
};

TEST_F(LinkedLightToolbarTest, StatesFollowTheUnitsAndTheSpace) {
    set(L"LIGHTINGUNITS", 1);
    EXPECT_EQ(states(), (LightStates{0, kDisabled, 0, 0, 0}));
    set(L"LIGHTINGUNITS", 0);
    EXPECT_EQ(states(), (LightStates{kDisabled, 0, kHidden, kHidden, 0}));
    set(L"TILEMODE", 0);
    set(L"LIGHTINGUNITS", 2);
    EXPECT_EQ(states(), (LightStates{0, kDisabled, 0, 0, kDisabled}));
    set(L"LIGHTINGUNITS", 0);
    EXPECT_EQ(states(), (LightStates{kDisabled, 0, kHidden, kHidden, kDisabled}))
        << "generic units leave the sky tools alone";
}

TEST_F(LinkedLightToolbarTest, ItemsChangeFromTheExposureToTheFlyouts) {
    set(L"LIGHTINGUNITS", 1);
    set(L"TILEMODE", 0);
    forget();
    set(L"LIGHTINGUNITS", 0);
    EXPECT_EQ(takeItemChanges(),
              (std::vector<std::string>{"ID_Adjust_Exposure disabled", "ID_DistantLight disabled",
                                        "TPL_0030 hidden", "LightSliderControl5 hidden",
                                        "TPL_0042 tool"}));
    ASSERT_TRUE(workbench::writeSkyStatus(bench().editor().documents().current()->data(), 2));
    set(L"LIGHTINGUNITS", 2);
    EXPECT_EQ(takeItemChanges(),
              (std::vector<std::string>{
                  "ID_Adjust_Exposure disabled", "ID_DistantLight disabled", "TPL_0030 hidden",
                  "LightSliderControl5 hidden", "ID_Skylight_Off disabled",
                  "ID_Skylight_Background disabled", "ID_Skylight_Illumination disabled",
                  "TPL_0030 tool", "TPL_0042 tool"}));
}

TEST_F(LinkedLightToolbarTest, GenericUnitsReadNothingButTheUnits) {
    set(L"LIGHTINGUNITS", 0);
    forget();
    refreshLightingUnits();
    EXPECT_EQ(takeReads(), (std::vector<std::string>{"vxedGetVar(\"LIGHTINGUNITS\")",
                                                     "vxedGetVar(\"LIGHTINGUNITS\")"}));
}

TEST_F(LinkedLightToolbarTest, PhotometricUnitsReadTheSpaceThenTheSkyThenTheUnits) {
    set(L"TILEMODE", 0);
    set(L"LIGHTINGUNITS", 1);
    forget();
    refreshLightingUnits();
    EXPECT_EQ(takeReads(),
              (std::vector<std::string>{
                  "vxedGetVar(\"LIGHTINGUNITS\")", "vxdbHostApplicationServices()",
                  "VxDbHostApplicationServices::workingDatabase()", "vxedGetVar(\"CVPORT\")",
                  "vxedActiveViewportId()", "vxedGetVar(\"LIGHTINGUNITS\")"}));
}

TEST_F(LinkedLightToolbarTest, WithoutAnItemTheOthersAreTreatedAllTheSame) {
    itemData(L"MAIN", L"Lights", 3).id = L"TPL_Other";
    dashboardManager()->notify(kDashboardUnload);
    dashboardManager()->notify(kDashboardReload);
    set(L"LIGHTINGUNITS", 1);
    set(L"LIGHTINGUNITS", 0);
    EXPECT_EQ(state(L"LightSliderControl5"), kHidden) << "there is no sky flyout before it";
}

}  // namespace
