#include "workbench/adapters/open_background.h"

#include "tests/workbench/adapters/adapters_fixture.h"

namespace workbench {

class OpenBackgroundTest : public AdaptersTest {};

TEST_F(OpenBackgroundTest, TellsItsType) {
    drawing::Background sky;
    sky.type = drawing::Background::kSky;
    auto* background = openAs<VxDbBackground>(data().add(sky).id);
    ASSERT_NE(background, nullptr);
    EXPECT_EQ(background->type(), 11);
    EXPECT_EQ(background->close(), Zorq::eOk);
}

}  // namespace workbench
