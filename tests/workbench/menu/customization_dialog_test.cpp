#include "workbench/menu/customization_dialog.h"

#include "tests/workbench/host/test_options.h"

#include <gtest/gtest.h>

namespace workbench {

class CustomizationDialogTest : public testing::Test {
protected:
    Workbench bench{testOptions()};
    CustomizationDialog dialog;
};

TEST_F(CustomizationDialogTest, RemembersThePanelThatWasSelectedLast) {
    EXPECT_FALSE(dialog.selection());
    dialog.selectPanel(L"ZORQ", L"Layers");
    dialog.selectPanel(L"HOUSETOOLS", L"HouseTools");
    EXPECT_EQ(dialog.selection(), (PanelKey{"HouseTools", "HOUSETOOLS"}));
}

TEST_F(CustomizationDialogTest, AToldFailureKeepsTheSelection) {
    dialog.selectPanel(L"ZORQ", L"Layers");
    bench.faults().fail("VxCustomizationInterface::selectPanel", {}, 1);
    dialog.selectPanel(L"ZORQ", L"Text");
    EXPECT_EQ(dialog.selection(), (PanelKey{"Layers", "ZORQ"}));
}

TEST_F(CustomizationDialogTest, TheDialogThatOpensTakesTheSelection) {
    dialog.selectPanel(L"ZORQ", L"Layers");
    EXPECT_EQ(dialog.takeSelection(), (PanelKey{"Layers", "ZORQ"}));
    EXPECT_FALSE(dialog.takeSelection());
    EXPECT_FALSE(dialog.selection());
}

}  // namespace workbench
