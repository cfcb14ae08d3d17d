#include "tests/palette/dashboard_fixture.h"

namespace {

TEST_F(DashboardTest, ItsPlaceIsKeptInTheToolkitsStore) {
    show();
    const NodePtr node = makeNode();
    EXPECT_EQ(dashboard().Save(node.get()), 1);
    EXPECT_EQ(dashboard().Load(node.get()), 1);
    EXPECT_EQ(dashboard().Load(nullptr), 0);
    EXPECT_EQ(dashboard().Save(nullptr), 0);
}

TEST_F(DashboardTest, AStoreThatIsNoNodeIsRefusedBeforeTheToolkitSeesIt) {
    show();
    Stranger stranger;
    EXPECT_EQ(dashboard().Load(&stranger), 0);
    EXPECT_EQ(dashboard().Save(&stranger), 0);
    EXPECT_EQ(callCount("CQrUiPaletteSet::Load"), 0);
    EXPECT_EQ(callCount("CQrUiPaletteSet::Save"), 0);
}

TEST_F(DashboardTest, ARefusalOfTheToolkitIsItsAnswer) {
    show();
    const NodePtr node = makeNode();
    fail("CQrUiPaletteSet::Save");
    EXPECT_EQ(dashboard().Save(node.get()), 0);
    ASSERT_EQ(dashboard().Save(node.get()), 1);
    fail("CQrUiPaletteSet::Load");
    EXPECT_EQ(dashboard().Load(node.get()), 0);
    EXPECT_EQ(dashboard().Load(node.get()), 1);
}

TEST_F(DashboardTest, AnErrorOfTheStoreBecomesTheLastError) {
    show();
    const NodePtr node = makeNode();
    SetLastError(0);
    constexpr int kCode = 0x1234;
    bench().faults().fail("CQrUiPaletteSet::Save", kCode);
    EXPECT_EQ(dashboard().Save(node.get()), 0);
    EXPECT_EQ(GetLastError(), 0x1234U);
}

}  // namespace
