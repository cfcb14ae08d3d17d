#include "workbench/adapters/open_sun.h"

#include "tests/workbench/adapters/adapters_fixture.h"

namespace workbench {

class OpenSunTest : public AdaptersTest {};

TEST_F(OpenSunTest, TellsWhetherItsSkyGivesLight) {
    for (const bool illumination : {true, false}) {
        drawing::Sun bright;
        bright.sky.illumination = illumination;
        auto* sun = openAs<VxDbSun>(data().add(bright).id);
        ASSERT_NE(sun, nullptr);
        EXPECT_EQ(sun->skyIllumination(), illumination);
        EXPECT_EQ(sun->close(), Zorq::eOk);
    }
}

}  // namespace workbench
