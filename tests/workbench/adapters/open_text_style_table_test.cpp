#include "workbench/adapters/open_text_style_table.h"

#include "tests/workbench/adapters/adapters_fixture.h"

#include <memory>

namespace workbench {

class OpenTextStyleTableTest : public AdaptersTest {
protected:
    VxDbTextStyleTable& openTable() {
        VxDbTextStyleTable* table = nullptr;
        EXPECT_EQ(m_document.database()->getSymbolTable(table, VxDbOpenMode::kForRead), Zorq::eOk);
        return *table;
    }
};

TEST_F(OpenTextStyleTableTest, IsWalkedStyleByStyle) {
    VxDbTextStyleTable& table = openTable();
    VxDbSymbolTableIterator* iterator = nullptr;
    EXPECT_EQ(table.newIterator(iterator, true, true), Zorq::eOk);
    table.close();
    const std::unique_ptr<VxDbSymbolTableIterator> walk(iterator);
    VxDbObjectId id;
    EXPECT_EQ(walk->getRecordId(id), Zorq::eOk);
    EXPECT_EQ(data().peek(fromHostId(id))->name(), "Standard");
    walk->step();
    EXPECT_TRUE(walk->done());
}

TEST_F(OpenTextStyleTableTest, AFaultGivesNoWalk) {
    VxDbTextStyleTable& table = openTable();
    VxDbSymbolTableIterator* iterator = nullptr;
    m_bench.faults().fail("VxDbTextStyleTable::newIterator", 15);
    EXPECT_EQ(table.newIterator(iterator, true, true), 15);
    EXPECT_EQ(iterator, nullptr);
    table.close();
}

}  // namespace workbench
