#include "workbench/desktop/panes/journal_pane.h"

#include "workbench/core/clock.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace workbench::desktop {
namespace {

class JournalPaneTest : public testing::Test {
protected:
    void add(const char* kind, const char* text) { m_journal.add(kind, {{"text", text}}); }
    void addVariable(int value) {
        m_journal.add("var", {{"name", "LUPREC"}, {"old", value - 1}, {"new", value}});
    }
    QStringList shown() { return m_pane.copied().split(QLatin1Char('\n'), Qt::SkipEmptyParts); }

    Clock m_clock;
    Journal m_journal{m_clock};
    JournalPane m_pane{m_journal};
};

TEST_F(JournalPaneTest, ShowsWhatTheJournalHasGathered) {
    addVariable(4);
    m_pane.takeOver();
    ASSERT_EQ(shown().size(), 1);
    EXPECT_TRUE(shown()[0].contains(QLatin1String("LUPREC: 3 -> 4"))) << qPrintable(shown()[0]);
    EXPECT_TRUE(m_journal.records().empty());
}

TEST_F(JournalPaneTest, KindsAndTextsAreFiltered) {
    addVariable(4);
    add("gesture", "click on a tool");
    add("gesture", "drag of a slider");
    m_pane.takeOver();
    EXPECT_EQ(shown().size(), 3);
    m_pane.filter().setKindShown(QStringLiteral("var"), false);
    EXPECT_EQ(shown().size(), 2);
    m_pane.filter().setText(QStringLiteral("SLIDER"));
    EXPECT_EQ(shown().size(), 1);
    m_pane.filter().setText({});
    m_pane.filter().setKindShown(QStringLiteral("var"), true);
    EXPECT_EQ(shown().size(), 3);
}

TEST_F(JournalPaneTest, WhatComesDuringAPauseIsShownAtItsEnd) {
    m_pane.setPaused(true);
    addVariable(4);
    m_pane.takeOver();
    EXPECT_TRUE(shown().isEmpty());
    m_pane.setPaused(false);
    EXPECT_EQ(shown().size(), 1);
}

TEST_F(JournalPaneTest, IsSavedAsJsonLines) {
    const QTemporaryDir folder;
    addVariable(4);
    addVariable(5);
    m_pane.takeOver();
    m_pane.filter().setText(QStringLiteral("4 -> 5"));
    const QString file = folder.filePath(QStringLiteral("journal.jsonl"));
    QString reason;
    ASSERT_TRUE(m_pane.saveTo(file, reason));
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll().toStdString(),
              "{\"t\":0,\"kind\":\"var\",\"name\":\"LUPREC\",\"old\":4,\"new\":5}\n");
}

TEST_F(JournalPaneTest, AFileThatCannotBeWrittenIsTold) {
    QString reason;
    EXPECT_FALSE(m_pane.saveTo(QStringLiteral("/no/such/folder/j"), reason));
    EXPECT_EQ(reason, QStringLiteral("/no/such/folder/j: the journal can't be written there"));
}

}  // namespace
}  // namespace workbench::desktop
