#include "workbench/desktop/panes/journal_filter.h"

#include "workbench/desktop/panes/journal_model.h"

#include <gtest/gtest.h>

#include <string>

namespace workbench::desktop {

namespace {

class JournalFilterTest : public testing::Test {
protected:
    JournalFilterTest() { model.append({named(1, "var", "LENS"), named(2, "dialog", "Sun")}); }

    static JournalRecord named(std::uint64_t number, const char* kind, const char* name) {
        return {number, 0, kind, {{"name", name}}};
    }
    /// The numbers of the records that come through.
    std::string shown() const {
        std::string numbers;
        for (int row = 0; row < filter.rowCount(); ++row) {
            const int source = filter.mapToSource(filter.index(row, 0)).row();
            numbers += std::to_string(model.record(source).number) + ";";
        }
        return numbers;
    }

    JournalModel model;
    JournalFilter filter{model};
};

}  // namespace

TEST_F(JournalFilterTest, AllComeThroughAtFirst) {
    EXPECT_EQ(shown(), "1;2;");
}

TEST_F(JournalFilterTest, AKindIsHiddenAndShownAgain) {
    filter.setKindShown(QStringLiteral("var"), false);
    EXPECT_EQ(shown(), "2;");
    filter.setKindShown(QStringLiteral("dialog"), false);
    EXPECT_EQ(shown(), "");
    filter.setKindShown(QStringLiteral("var"), true);
    EXPECT_EQ(shown(), "1;");
}

TEST_F(JournalFilterTest, ATextIsFoundWithoutRegardToCase) {
    filter.setText(QStringLiteral("lens"));
    EXPECT_EQ(shown(), "1;");
    filter.setText({});
    EXPECT_EQ(shown(), "1;2;");
}

TEST_F(JournalFilterTest, KindAndTextBothCount) {
    filter.setText(QStringLiteral("s"));
    filter.setKindShown(QStringLiteral("var"), false);
    EXPECT_EQ(shown(), "2;");
}

TEST_F(JournalFilterTest, NewRowsAreFilteredToo) {
    filter.setText(QStringLiteral("sun"));
    model.append({named(3, "dialog", "Layers"), named(4, "var", "SUNSTATUS")});
    EXPECT_EQ(shown(), "2;4;");
}

}  // namespace workbench::desktop
