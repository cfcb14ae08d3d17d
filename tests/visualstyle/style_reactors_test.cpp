#include "visualstyle/style_reactors.h"

#include "tests/palette/palette_fixture.h"

namespace {

class StyleReactorsTest : public PaletteTest {
protected:
    void SetUp() override { deleteStyleReactors(); }
    void TearDown() override {
        deleteStyleReactors();
        PaletteTest::TearDown();
    }
    /// Whether there is a watcher: it looks at the space, which nothing else does here.
    bool isWatching() {
        forget();
        updateVisualStyleState();
        return callCount("vxedGetVar") > 0;
    }
};

TEST_F(StyleReactorsTest, NothingIsWatchedBeforeTheFirstUse) {
    EXPECT_FALSE(isWatching());
}

TEST_F(StyleReactorsTest, OneReleaseEndsOneUse) {
    acquireStyleReactors();
    EXPECT_TRUE(isWatching());
    releaseStyleReactors();
    EXPECT_FALSE(isWatching());
}

TEST_F(StyleReactorsTest, UsesAreCounted) {
    acquireStyleReactors();
    acquireStyleReactors();
    releaseStyleReactors();
    EXPECT_TRUE(isWatching());
    releaseStyleReactors();
    EXPECT_FALSE(isWatching());
}

TEST_F(StyleReactorsTest, ReleaseBelowZeroKeepsTheNextUseFromMakingThem) {
    releaseStyleReactors();
    acquireStyleReactors();
    EXPECT_FALSE(isWatching());
    acquireStyleReactors();
    EXPECT_TRUE(isWatching());
}

TEST_F(StyleReactorsTest, EndOfTheModuleEndsThemWhateverTheirCounts) {
    acquireStyleReactors();
    acquireStyleReactors();
    deleteStyleReactors();
    EXPECT_FALSE(isWatching());
    acquireStyleReactors();
    EXPECT_TRUE(isWatching());
    releaseStyleReactors();
    EXPECT_FALSE(isWatching()) << "counting began anew";
}

}  // namespace
