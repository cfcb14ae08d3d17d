#include "workbench/adapters/view_table_walk.h"

#include "tests/workbench/adapters/adapters_fixture.h"
#include "workbench/drawing/records/view.h"

namespace workbench {

class ViewTableWalkTest : public AdaptersTest {
protected:
    drawing::ObjectId addView(const char* name) {
        drawing::View view;
        view.name = name;
        return data().add(view).id;
    }
    std::unique_ptr<VxDbViewTableIterator> walk(bool atStart) {
        VxDbViewTable* table = nullptr;
        m_document.database()->getSymbolTable(table, VxDbOpenMode::kForRead);
        VxDbViewTableIterator* iterator = nullptr;
        EXPECT_EQ(table->newIterator(iterator, atStart, true), Zorq::eOk);
        table->close();
        return std::unique_ptr<VxDbViewTableIterator>(iterator);
    }
    /// The names of the views, in the order of a walk.
    std::vector<VxString> viewNames(bool atStart) {
        std::vector<VxString> names;
        for (const auto each = walk(atStart); !each->done(); each->step(atStart)) {
            VxDbViewTableRecord* record = nullptr;
            EXPECT_EQ(each->getRecord(record, VxDbOpenMode::kForRead), Zorq::eOk);
            EXPECT_EQ(record->getName(names.emplace_back()), Zorq::eOk);
            record->close();
        }
        return names;
    }
};

TEST_F(ViewTableWalkTest, AWalkGoesOverTheLivingViewsFromEitherEnd) {
    EXPECT_TRUE(viewNames(true).empty());
    addView("Attic");
    const drawing::ObjectId cellar = addView("Cellar");
    addView("J\u00e4gerzimmer");
    EXPECT_EQ(viewNames(true), (std::vector<VxString>{L"Attic", L"Cellar", L"J\u00e4gerzimmer"}));
    EXPECT_EQ(viewNames(false), (std::vector<VxString>{L"J\u00e4gerzimmer", L"Cellar", L"Attic"}));
    drawing::Writing<drawing::View>(data(), cellar).erase();
    EXPECT_EQ(viewNames(true).size(), 2U);
    EXPECT_EQ(m_document.openObjects().count(), 0U);
}

TEST_F(ViewTableWalkTest, AWalkTellsTheIdOfEachViewAndNothingPastTheEnd) {
    const drawing::ObjectId attic = addView("Attic");
    const auto each = walk(true);
    VxDbObjectId id;
    EXPECT_EQ(each->getRecordId(id), Zorq::eOk);
    EXPECT_EQ(id, toHostId(attic));
    each->step();
    VxDbViewTableRecord* record = nullptr;
    EXPECT_NE(each->getRecordId(id), Zorq::eOk);
    EXPECT_NE(each->getRecord(record, VxDbOpenMode::kForRead), Zorq::eOk);
    EXPECT_EQ(record, nullptr);
}

TEST_F(ViewTableWalkTest, AViewThatIsErasedDuringTheWalkCannotBeOpened) {
    const drawing::ObjectId attic = addView("Attic");
    const auto each = walk(true);
    drawing::Writing<drawing::View>(data(), attic).erase();
    VxDbViewTableRecord* record = nullptr;
    EXPECT_NE(each->getRecord(record, VxDbOpenMode::kForRead), Zorq::eOk);
    EXPECT_EQ(record, nullptr);
}

TEST_F(ViewTableWalkTest, FaultsGiveNoViewAndNoId) {
    addView("Attic");
    const auto each = walk(true);
    VxDbViewTableRecord* record = nullptr;
    VxDbObjectId id;
    m_bench.faults().fail("VxDbViewTableIterator::getRecord", 11);
    m_bench.faults().fail("VxDbSymbolTableIterator::getRecordId", 12);
    EXPECT_EQ(each->getRecord(record, VxDbOpenMode::kForRead), 11);
    EXPECT_EQ(record, nullptr);
    EXPECT_EQ(each->getRecordId(id), 12);
}

}  // namespace workbench
