#include "workbench/adapters/open_layout_viewport.h"

#include "tests/workbench/adapters/adapters_fixture.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"

namespace workbench {

class OpenLayoutViewportTest : public AdaptersTest {};

TEST_F(OpenLayoutViewportTest, TellsWhatItShows) {
    drawing::Viewport port;
    port.number = 7;
    port.background = data().add(drawing::Background()).id;
    port.sun = data().add(drawing::Sun()).id;
    port.layout = firstLayout();
    auto* inLayout = openAs<VxDbViewport>(data().add(port).id);
    ASSERT_NE(inLayout, nullptr);
    EXPECT_EQ(inLayout->background(), toHostId(port.background));
    EXPECT_EQ(inLayout->sunId(), toHostId(port.sun));
    inLayout->close();
}

TEST_F(OpenLayoutViewportTest, TellsWhetherItIsLocked) {
    drawing::Viewport port;
    port.number = 7;
    port.locked = true;
    port.layout = firstLayout();
    auto* inLayout = openAs<VxDbViewport>(data().add(port).id);
    EXPECT_TRUE(inLayout->isLocked());
    m_bench.faults().fail("VxDbViewport::isLocked");
    EXPECT_FALSE(inLayout->isLocked());
    inLayout->close();
}

}  // namespace workbench
