#include "layer/open_viewport.h"

#include "tests/layer/filter_walk_fixture.h"

#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/views.h>

namespace {

TEST_F(FilterWalkTest, ViewportThatWasNotToBeOpenedHasItsOwnStatus) {
    const OpenViewport viewport;
    EXPECT_EQ(viewport.status(), 15);
    EXPECT_EQ(viewport.get(), nullptr);
}

TEST_F(FilterWalkTest, ViewportIsOpenForWritingWhileItsOwnerLives) {
    enterViewport();
    const VxAxDocLock lock(bench().editor().documents().current());
    {
        OpenViewport viewport;
        viewport.open(vxedGetCurViewportObjectId());
        EXPECT_EQ(viewport.status(), 0);
        ASSERT_NE(viewport.get(), nullptr);
        EXPECT_EQ(openCount(), 1U);
    }
    EXPECT_EQ(openCount(), 0U);
}

TEST_F(FilterWalkTest, FailedOpenTellsTheHostsStatus) {
    enterViewport();
    fail("vxdbOpenObject", 42, 1);
    OpenViewport viewport;
    viewport.open(vxedGetCurViewportObjectId());
    EXPECT_EQ(viewport.status(), 42);
    EXPECT_EQ(viewport.get(), nullptr);
    OpenViewport none;
    none.open({});
    EXPECT_NE(none.status(), 0);
    EXPECT_NE(none.status(), 15);
}

TEST_F(FilterWalkTest, ViewportOfModelSpaceIsNone) {
    const VxAxDocLock lock(bench().editor().documents().current());
    OpenViewport viewport;
    viewport.open(vxedActiveViewportId());
    EXPECT_NE(viewport.status(), 0);
    EXPECT_EQ(viewport.get(), nullptr);
}

}  // namespace
