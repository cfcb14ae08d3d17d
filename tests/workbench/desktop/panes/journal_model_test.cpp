#include "workbench/desktop/panes/journal_model.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace workbench::desktop {

namespace {

/// Records with ascending numbers, from `first`.
std::vector<JournalRecord> records(std::size_t count, std::uint64_t first = 1) {
    std::vector<JournalRecord> made;
    for (std::uint64_t number = first; made.size() < count; ++number)
        made.push_back({number, 300, "var", {{"name", "A"}, {"old", 1}, {"new", 2}}});
    return made;
}

std::string textOf(const JournalModel& model, int row, int column) {
    return model.index(row, column).data().toString().toStdString();
}

}  // namespace

TEST(JournalModelTest, ARowTellsTimeKindAndWhatHappened) {
    JournalModel model;
    model.append(records(1));
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(textOf(model, 0, JournalModel::TimeColumn), "300");
    EXPECT_EQ(textOf(model, 0, JournalModel::KindColumn), "var");
    EXPECT_EQ(textOf(model, 0, JournalModel::TextColumn), "A: 1 -> 2");
}

TEST(JournalModelTest, EachColumnHasATitle) {
    const JournalModel model;
    ASSERT_EQ(model.columnCount(), 3);
    for (int column = 0; column < model.columnCount(); ++column)
        EXPECT_FALSE(model.headerData(column, Qt::Horizontal).toString().isEmpty()) << column;
}

TEST(JournalModelTest, NewRowsComeInOneNotice) {
    JournalModel model;
    int notices = 0;
    int last = 0;
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model,
                     [&](const QModelIndex& /*parent*/, int /*from*/, int to) {
                         ++notices;
                         last = to;
                     });
    model.append({});
    EXPECT_EQ(notices, 0);
    model.append(records(10'000));
    EXPECT_EQ(notices, 1);
    EXPECT_EQ(last, 9'999);
}

TEST(JournalModelTest, TheOldestRowsGoWhenThereAreTooMany) {
    JournalModel model;
    model.append(records(JournalModel::kMostRows));
    EXPECT_EQ(model.record(0).number, 1U);
    model.append(records(2, JournalModel::kMostRows + 1));
    EXPECT_EQ(model.rowCount(), static_cast<int>(JournalModel::kMostRows));
    EXPECT_EQ(model.record(0).number, 3U);
    EXPECT_EQ(model.record(model.rowCount() - 1).number, JournalModel::kMostRows + 2);
}

TEST(JournalModelTest, OfMoreRecordsThanRowsTheLastStay) {
    JournalModel model;
    model.append(records(1));
    model.append(records(JournalModel::kMostRows + 5, 100));
    EXPECT_EQ(model.rowCount(), static_cast<int>(JournalModel::kMostRows));
    EXPECT_EQ(model.record(0).number, 105U);
}

TEST(JournalModelTest, ClearForgetsAllRows) {
    JournalModel model;
    model.append(records(3));
    model.clear();
    EXPECT_EQ(model.rowCount(), 0);
    model.append(records(1));
    EXPECT_EQ(model.rowCount(), 1);
}

}  // namespace workbench::desktop
