#include "workbench/adapters/open_view_table.h"

#include "tests/workbench/adapters/adapters_fixture.h"

namespace workbench {

class OpenViewTableTest : public AdaptersTest {};

TEST_F(OpenViewTableTest, AFaultGivesNoWalk) {
    auto* table = openAs<VxDbViewTable>(data().table(drawing::RecordKind::View));
    ASSERT_NE(table, nullptr);
    VxDbViewTableIterator* iterator = nullptr;
    m_bench.faults().fail("VxDbViewTable::newIterator", 14);
    EXPECT_EQ(table->newIterator(iterator, true, true), 14);
    EXPECT_EQ(iterator, nullptr);
    table->close();
}

TEST_F(OpenViewTableTest, AWalkOutlivesTheOpeningOfTheTable) {
    auto* table = openAs<VxDbViewTable>(data().table(drawing::RecordKind::View));
    ASSERT_NE(table, nullptr);
    VxDbViewTableIterator* iterator = nullptr;
    EXPECT_EQ(table->newIterator(iterator, true, true), Zorq::eOk);
    table->close();
    const std::unique_ptr<VxDbViewTableIterator> walk(iterator);
    ASSERT_NE(walk, nullptr);
    EXPECT_TRUE(walk->done());
}

}  // namespace workbench
