#include "workbench/adapters/layer_table_walk.h"

#include "tests/workbench/adapters/adapters_fixture.h"
#include "workbench/drawing/records/layer.h"

#include <memory>

namespace workbench {

class LayerTableWalkTest : public AdaptersTest {
protected:
    LayerTableWalkTest() {
        add("Walls", true);
        m_roof = add("Roof", false);
        add("Doors", true);
    }

    drawing::ObjectId add(const char* name, bool reconciled) {
        drawing::Layer layer;
        layer.name = name;
        layer.reconciled = reconciled;
        return data().add(layer).id;
    }
    std::unique_ptr<VxDbLayerTableIterator> walk(bool atStart, bool skipErased) {
        VxDbLayerTable* table = nullptr;
        m_document.database()->getSymbolTable(table, VxDbOpenMode::kForRead);
        VxDbLayerTableIterator* iterator = nullptr;
        EXPECT_EQ(table->newIterator(iterator, atStart, skipErased), Zorq::eOk);
        table->close();
        return std::unique_ptr<VxDbLayerTableIterator>(iterator);
    }
    Lines rest(VxDbLayerTableIterator& walk, bool forward = true, bool skipErased = true) {
        Lines names;
        for (; !walk.done(); walk.step(forward, skipErased)) {
            VxDbObjectId id;
            EXPECT_EQ(walk.getRecordId(id), Zorq::eOk);
            names.push_back(data().peek(fromHostId(id))->name());
        }
        return names;
    }

    drawing::ObjectId m_roof;
};

TEST_F(LayerTableWalkTest, GoesOverTheLayersForwardAndBack) {
    EXPECT_EQ(rest(*walk(true, true)), (Lines{"0", "Walls", "Roof", "Doors"}));
    EXPECT_EQ(rest(*walk(false, true), false), (Lines{"Doors", "Roof", "Walls", "0"}));
    EXPECT_EQ(rest(*walk(false, true), true), Lines{"Doors"});
}

TEST_F(LayerTableWalkTest, LeavesErasedLayersOutOrNot) {
    drawing::Writing<drawing::Layer>(data(), m_roof).erase();
    EXPECT_EQ(rest(*walk(true, true)), (Lines{"0", "Walls", "Doors"}));
    EXPECT_EQ(rest(*walk(true, false), true, false), (Lines{"0", "Walls", "Roof", "Doors"}));
}

TEST_F(LayerTableWalkTest, BeginsAnewWithTheLayersThatThereAreThen) {
    const auto each = walk(true, true);
    rest(*each);
    add("Windows", true);
    each->start();
    EXPECT_EQ(rest(*each), (Lines{"0", "Walls", "Roof", "Doors", "Windows"}));
    each->start(false, true);
    EXPECT_EQ(rest(*each, false).front(), "Windows");
}

TEST_F(LayerTableWalkTest, LeavesAcceptedLayersOutFromTheNextStepOn) {
    const auto each = walk(true, true);
    each->setSkipReconciled(true);
    EXPECT_EQ(rest(*each), (Lines{"0", "Roof"}));
    each->start();
    EXPECT_EQ(rest(*each), Lines{"Roof"});
    each->setSkipReconciled(false);
    each->start();
    EXPECT_EQ(rest(*each).size(), 4U);
}

TEST_F(LayerTableWalkTest, PastTheEndThereIsNoIdAndNoStep) {
    const auto each = walk(true, true);
    rest(*each);
    each->step(false, true);
    VxDbObjectId id;
    EXPECT_TRUE(each->done());
    EXPECT_NE(each->getRecordId(id), Zorq::eOk);
    EXPECT_TRUE(id.isNull());
}

}  // namespace workbench
