#include "workbench/adapters/open_tile.h"

#include "tests/workbench/adapters/adapters_fixture.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"

namespace workbench {

class OpenTileTest : public AdaptersTest {};

TEST_F(OpenTileTest, TellsWhatItShows) {
    drawing::Viewport port;
    port.number = 7;
    port.background = data().add(drawing::Background()).id;
    port.sun = data().add(drawing::Sun()).id;
    auto* tile = openAs<VxDbViewportTableRecord>(data().add(port).id);
    ASSERT_NE(tile, nullptr);
    EXPECT_EQ(tile->background(), toHostId(port.background));
    EXPECT_EQ(tile->sunId(), toHostId(port.sun));
    tile->close();
}

TEST_F(OpenTileTest, IsNoViewportOfALayout) {
    drawing::Viewport port;
    port.number = 7;
    port.locked = true;
    VxDbObject* tile = open(data().add(port).id);
    EXPECT_EQ(dynamic_cast<VxDbViewport*>(tile), nullptr);
    tile->close();
}

}  // namespace workbench
