#include "workbench/toolkit/system_colours.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

class SystemColoursTest : public ToolkitTest {};

TEST_F(SystemColoursTest, TextIsDarkInTheLightThemeAndLightInTheDarkOne) {
    const COLORREF light = GetSysColor(COLOR_WINDOWTEXT);
    EXPECT_LT(light & 0xff, 0x40U);
    toolkit().setShade(Shade::Dark);
    EXPECT_GT(GetSysColor(COLOR_WINDOWTEXT) & 0xff, 0xc0U);
}

TEST_F(SystemColoursTest, EachThemeHasAColourOfItsOwnForWhatIsSelected) {
    EXPECT_NE(systemColour(Shade::Light, COLOR_HIGHLIGHT),
              systemColour(Shade::Light, COLOR_HIGHLIGHTTEXT));
    EXPECT_NE(systemColour(Shade::Light, COLOR_HIGHLIGHT),
              systemColour(Shade::Dark, COLOR_HIGHLIGHT));
}

TEST_F(SystemColoursTest, AnUnknownColourIsBlack) {
    EXPECT_EQ(systemColour(Shade::Light, 99), 0U);
}

}  // namespace
}  // namespace workbench
