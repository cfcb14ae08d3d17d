#include "workbench/desktop/panes/journal_pane.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QToolButton>
#include <chrono>
#include <fstream>
#include <iterator>
#include <string>

namespace workbench::desktop {

namespace {

class JournalPaneTest : public testing::Test {
protected:
    /// The event loop: the first turn takes the records over, the second one lays the table out.
    static void comeRound() {
        QApplication::processEvents();
        QApplication::processEvents();
    }
    void show() {
        pane.resize(600, 240);
        pane.show();
        comeRound();
    }
    void add(const std::string& name, const char* kind = "dialog") {
        journal.add(kind, {{"name", name}});
    }
    void addMany(int count) {
        for (int number = 0; number < count; ++number)
            add(std::to_string(number));
    }
    QTableView& table() { return *pane.findChild<QTableView*>(); }
    int rows() { return table().model()->rowCount(); }
    std::string text(int row, int column = JournalModel::TextColumn) {
        return table().model()->index(row, column).data().toString().toStdString();
    }
    void click(const char* button) {
        for (QToolButton* each : pane.findChildren<QToolButton*>()) {
            if (each->text() == QLatin1String(button)) {
                each->click();
                return;
            }
        }
        FAIL() << "no button " << button;
    }
    void setKindShown(const char* kind, bool shown) {
        for (QAction* action : pane.findChild<QMenu*>()->actions()) {
            if (action->text() == QLatin1String(kind))
                action->setChecked(shown);
        }
    }
    QScrollBar& bar() { return *table().verticalScrollBar(); }

    Clock clock;
    Journal journal{clock};
    JournalPane pane{journal};
};

}  // namespace

TEST_F(JournalPaneTest, RecordsAreShownWhenTheEventLoopComesRound) {
    show();
    add("a");
    add("b");
    EXPECT_EQ(rows(), 0);
    comeRound();
    ASSERT_EQ(rows(), 2);
    EXPECT_EQ(text(0), "name \"a\"");
    EXPECT_EQ(text(1), "name \"b\"");
}

TEST_F(JournalPaneTest, ACallIsShownWithTheResultThatCameLater) {
    show();
    const std::uint64_t number = journal.add("call", {{"name", "f"}});
    add("inside");
    journal.complete(number, "result", 7);
    pane.takeOver();
    EXPECT_EQ(text(0), "f() = 7");
    EXPECT_EQ(text(1), "name \"inside\"");
}

TEST_F(JournalPaneTest, RecordsThatOthersHaveTakenAreShown) {
    show();
    add("a");
    journal.take();
    pane.takeOver();
    EXPECT_EQ(rows(), 1);
}

TEST_F(JournalPaneTest, RecordsOfAnOlderListenerStandInTheirOrder) {
    Journal later(clock);
    const auto older = later.addListener([&later](const JournalRecord& record) {
        if (record.kind == "call")
            later.add("dialog", {});
    });
    JournalPane listening(later);
    listening.show();
    later.add("call", {{"name", "f"}});
    listening.takeOver();
    const QAbstractItemModel& model = *listening.findChild<QTableView*>()->model();
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(0, JournalModel::KindColumn).data(), QStringLiteral("call"));
    EXPECT_EQ(model.index(1, JournalModel::KindColumn).data(), QStringLiteral("dialog"));
}

TEST_F(JournalPaneTest, TheNewestRowStaysInView) {
    show();
    addMany(200);
    comeRound();
    EXPECT_GT(bar().maximum(), 0);
    EXPECT_EQ(bar().value(), bar().maximum());
    addMany(200);
    comeRound();
    EXPECT_EQ(bar().value(), bar().maximum());
    pane.resize(600, 120);
    comeRound();
    EXPECT_EQ(bar().value(), bar().maximum());
}

TEST_F(JournalPaneTest, AUserWhoScrolledUpStaysThereUntilBackAtTheEnd) {
    show();
    addMany(200);
    comeRound();
    bar().setValue(10);
    addMany(50);
    comeRound();
    EXPECT_EQ(bar().value(), 10);
    bar().setValue(bar().maximum());
    addMany(50);
    comeRound();
    EXPECT_EQ(bar().value(), bar().maximum());
}

TEST_F(JournalPaneTest, APausedPaneShowsWhatCameMeanwhileOnResume) {
    show();
    add("before");
    click("Pause");
    add("meanwhile");
    comeRound();
    EXPECT_EQ(rows(), 1);
    click("Resume");
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(text(1), "name \"meanwhile\"");
}

TEST_F(JournalPaneTest, AHiddenPaneTakesRowsOnlyOnceItIsShown) {
    add("a");
    comeRound();
    EXPECT_EQ(rows(), 0);
    show();
    EXPECT_EQ(rows(), 1);
    pane.hide();
    add("b");
    comeRound();
    EXPECT_EQ(rows(), 1);
    pane.show();
    EXPECT_EQ(rows(), 2);
}

TEST_F(JournalPaneTest, AHiddenPaneKeepsNoMoreThanTheTableTakes) {
    const int most = static_cast<int>(JournalModel::kMostRows);
    addMany(2 * most + 10);
    journal.take();
    show();
    EXPECT_EQ(rows(), most);
    EXPECT_EQ(text(most - 1), "name \"" + std::to_string(2 * most + 9) + "\"");
}

TEST_F(JournalPaneTest, ABurstIsTakenOverQuickly) {
    show();
    addMany(10'000);
    const auto start = std::chrono::steady_clock::now();
    comeRound();
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(rows(), 10'000);
    EXPECT_LT(took, std::chrono::seconds(1));
}

TEST_F(JournalPaneTest, KindsAndTextFilterTheRows) {
    show();
    add("sun");
    add("sky", "tip");
    pane.takeOver();
    setKindShown("tip", false);
    EXPECT_EQ(rows(), 1);
    setKindShown("tip", true);
    pane.findChild<QLineEdit*>()->setText(QStringLiteral("SKY"));
    ASSERT_EQ(rows(), 1);
    EXPECT_EQ(text(0, JournalModel::KindColumn), "tip");
}

TEST_F(JournalPaneTest, ClearEmptiesThePaneButNotTheJournal) {
    show();
    add("a");
    pane.takeOver();
    click("Clear");
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(journal.records().size(), 1U);
}

TEST_F(JournalPaneTest, CopyTakesAllRowsOnShowIfNoneIsSelected) {
    show();
    add("a");
    add("b", "tip");
    pane.takeOver();
    setKindShown("tip", false);
    click("Copy");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("0 ms    dialog   name \"a\"\n"));
}

TEST_F(JournalPaneTest, CopyTakesTheSelectedRowsInTheirOrder) {
    show();
    for (const char* name : {"a", "b", "c"})
        add(name);
    pane.takeOver();
    for (const int row : {2, 0}) {
        table().selectionModel()->select(table().model()->index(row, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    EXPECT_EQ(pane.copied(),
              QStringLiteral("0 ms    dialog   name \"a\"\n0 ms    dialog   name \"c\"\n"));
}

TEST_F(JournalPaneTest, SaveWritesTheRowsOnShowAsJsonLines) {
    show();
    add("a");
    add("b", "tip");
    pane.takeOver();
    setKindShown("tip", false);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("journal.jsonl"));
    QString error;
    ASSERT_TRUE(pane.saveTo(path, error)) << error.toStdString();
    std::ifstream file(path.toStdString());
    const std::string text(std::istreambuf_iterator<char>(file), {});
    EXPECT_EQ(text, "{\"t\":0,\"kind\":\"dialog\",\"name\":\"a\"}\n");
}

TEST_F(JournalPaneTest, AFileThatCannotBeWrittenIsToldInOneMessage) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("missing/journal.jsonl"));
    QString error;
    EXPECT_FALSE(pane.saveTo(path, error));
    EXPECT_TRUE(error.startsWith(QStringLiteral("The journal can't be written to ") + path))
        << error.toStdString();
    EXPECT_FALSE(error.contains(QLatin1Char('\n')));
}

TEST_F(JournalPaneTest, EachPartHasAName) {
    for (const QWidget* part : pane.findChildren<QToolButton*>()) {
        // The button that clears the text field is Qt's own.
        if (qobject_cast<QLineEdit*>(part->parentWidget()) == nullptr) {
            EXPECT_FALSE(part->accessibleName().isEmpty());
        }
    }
    EXPECT_FALSE(pane.findChild<QPushButton*>()->accessibleName().isEmpty());
    EXPECT_FALSE(table().accessibleName().isEmpty());
    EXPECT_FALSE(pane.findChild<QLineEdit*>()->accessibleName().isEmpty());
}

TEST_F(JournalPaneTest, CallsAndMessagesOfIdleTicksAreLeftOutAtFirst) {
    show();
    bool idle = true;
    pane.setIsIdle([&idle] { return idle; });
    add("a", "call");
    add("b", "message");
    add("c", "control");
    comeRound();
    EXPECT_EQ(rows(), 1) << "what changed on the screen is no noise";
    idle = false;
    add("d", "call");
    comeRound();
    EXPECT_EQ(rows(), 2);
    idle = true;
    pane.setIdleShown(true);
    add("e", "call");
    comeRound();
    EXPECT_EQ(rows(), 3);
}

TEST_F(JournalPaneTest, AllKindsOrNoneAreShownAtOnce) {
    show();
    add("a", "call");
    add("b", "var");
    comeRound();
    pane.setAllKinds(false);
    EXPECT_EQ(rows(), 0);
    setKindShown("var", true);
    EXPECT_EQ(rows(), 1);
    pane.setAllKinds(true);
    EXPECT_EQ(rows(), 2);
}

}  // namespace workbench::desktop
