#include "layer/layer_walk.h"

#include "tests/layer/layer_filter_fixture.h"

namespace {

TEST_F(LayerFilterTest, IdsOfAllLayersAreCollectedUnderAWaitCursor) {
    EXPECT_EQ(collectLayerIds().size(), 4U);
    const Calls made = takeCallLines({"CWaitCursor::CWaitCursor", "VxDbDatabase::getSymbolTable",
                                      "VxDbLayerTable::newIterator", "CWaitCursor::~CWaitCursor"});
    ASSERT_EQ(made.size(), 4U);
    EXPECT_EQ(made.front(), "CWaitCursor::CWaitCursor()");
    EXPECT_EQ(made[2], "VxDbLayerTable::newIterator(true, true)");
    EXPECT_EQ(made.back(), "CWaitCursor::~CWaitCursor()");
    EXPECT_EQ(bench().editor().documents().current()->openObjects().count(), 0U);
}

TEST_F(LayerFilterTest, LayerWithoutAnIdIsLeftOut) {
    failAt("VxDbSymbolTableIterator::getRecordId", 2);
    EXPECT_EQ(collectLayerIds().size(), 3U);
}

TEST_F(LayerFilterTest, WithoutATableOrAWalkThereAreNoIds) {
    fail("VxDbDatabase::getSymbolTable", {}, 1);
    EXPECT_TRUE(collectLayerIds().empty());
    fail("VxDbLayerTable::newIterator", {}, 1);
    EXPECT_TRUE(collectLayerIds().empty());
    EXPECT_EQ(bench().editor().documents().current()->openObjects().count(), 0U);
}

TEST_F(LayerFilterTest, WithoutADatabaseThereAreNoIds) {
    closeDocument(L"A");
    EXPECT_TRUE(collectLayerIds().empty());
}

}  // namespace
