#include "workbench/adapters/open_layer_table.h"

#include "tests/workbench/adapters/adapters_fixture.h"
#include "workbench/drawing/records/layer.h"

namespace workbench {

class OpenLayerTableTest : public AdaptersTest {
protected:
    VxDbLayerTable& openTable() {
        VxDbLayerTable* table = nullptr;
        EXPECT_EQ(m_document.database()->getSymbolTable(table, VxDbOpenMode::kForRead), Zorq::eOk);
        return *table;
    }
};

TEST_F(OpenLayerTableTest, TellsWhetherALayerWasNotAcceptedYet) {
    VxDbLayerTable& table = openTable();
    EXPECT_FALSE(table.hasUnreconciledLayers());
    drawing::Layer fresh;
    fresh.name = "Fresh";
    fresh.reconciled = false;
    const drawing::ObjectId id = data().add(fresh).id;
    EXPECT_TRUE(table.hasUnreconciledLayers());
    drawing::Writing<drawing::Layer>(data(), id).erase();
    EXPECT_FALSE(table.hasUnreconciledLayers());
    table.close();
}

TEST_F(OpenLayerTableTest, AFaultGivesNoWalk) {
    VxDbLayerTable& table = openTable();
    VxDbLayerTableIterator* iterator = nullptr;
    m_bench.faults().fail("VxDbLayerTable::newIterator", 14);
    EXPECT_EQ(table.newIterator(iterator, true, true), 14);
    EXPECT_EQ(iterator, nullptr);
    table.close();
}

}  // namespace workbench
