#include "workbench/desktop/panes/journal_model.h"

#include <gtest/gtest.h>

namespace workbench::desktop {
namespace {

std::vector<JournalRecord> records(std::uint64_t first, std::size_t count) {
    std::vector<JournalRecord> made(count);
    for (std::size_t i = 0; i < count; ++i) {
        made[i].number = first + i;
        made[i].kind = "gesture";
    }
    return made;
}

TEST(JournalModelTest, TheOldestRowsGoWhenThereAreTooMany) {
    JournalModel model;
    model.append(records(1, JournalModel::kMostRows - 10));
    model.append(records(JournalModel::kMostRows - 9, 25));
    EXPECT_EQ(model.rowCount(), static_cast<int>(JournalModel::kMostRows));
    EXPECT_EQ(model.record(0).number, 16U);
    EXPECT_EQ(model.record(model.rowCount() - 1).number, JournalModel::kMostRows + 15);
}

TEST(JournalModelTest, OfABurstOnlyTheLastRowsAreKept) {
    JournalModel model;
    model.append(records(1, JournalModel::kMostRows + 7));
    EXPECT_EQ(model.rowCount(), static_cast<int>(JournalModel::kMostRows));
    EXPECT_EQ(model.record(0).number, 8U);
}

TEST(JournalModelTest, ColumnsHaveTheirHeads) {
    JournalModel model;
    JournalRecord record;
    record.time = 70;
    record.kind = "balloon";
    model.append({record});
    EXPECT_EQ(model.headerData(JournalModel::kTime, Qt::Horizontal, Qt::DisplayRole).toString(),
              QStringLiteral("ms"));
    EXPECT_EQ(model.index(0, JournalModel::kTime).data().toInt(), 70);
    EXPECT_EQ(model.index(0, JournalModel::kKind).data().toString(), QStringLiteral("balloon"));
    model.clear();
    EXPECT_EQ(model.rowCount(), 0);
}

}  // namespace
}  // namespace workbench::desktop
