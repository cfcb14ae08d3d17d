#include "tests/support/bench.h"

#include "workbench/editor/editor.h"
#include "workbench/toolkit/lookup.h"

#include <string>

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

}  // namespace
