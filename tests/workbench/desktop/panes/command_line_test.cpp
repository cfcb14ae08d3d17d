#include "workbench/desktop/panes/command_line.h"

#include "tests/workbench/desktop/events.h"

#include <QCompleter>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace workbench::desktop {
namespace {

class CommandLineTest : public testing::Test {
protected:
    CommandLineTest() {
        m_line.setOnEnter([this](const QString& text) { m_entered.append(text); });
        m_line.setOnCancel([this] { ++m_cancelled; });
    }
    void enter(const char* text) {
        m_line.input().setText(QString::fromLatin1(text));
        pressKey(m_line.input(), Qt::Key_Return);
    }

    CommandLine m_line;
    QStringList m_entered;
    int m_cancelled = 0;
};

TEST_F(CommandLineTest, EnterHandsTheLineOver) {
    enter("LINE");
    enter("");
    EXPECT_EQ(m_entered, (QStringList{QStringLiteral("LINE"), QString()}));
    EXPECT_TRUE(m_line.input().text().isEmpty());
}

TEST_F(CommandLineTest, EscapeCancelsAndEmptiesTheLine) {
    m_line.input().setText(QStringLiteral("LI"));
    pressKey(m_line.input(), Qt::Key_Escape);
    EXPECT_EQ(m_cancelled, 1);
    EXPECT_TRUE(m_line.input().text().isEmpty());
}

TEST_F(CommandLineTest, ArrowsWalkThroughEarlierLinesWithoutDoubles) {
    enter("LINE");
    enter("LINE");
    enter("UNDO");
    m_line.input().setText(QStringLiteral("half"));
    pressKey(m_line.input(), Qt::Key_Up);
    EXPECT_EQ(m_line.input().text(), QStringLiteral("UNDO"));
    pressKey(m_line.input(), Qt::Key_Up);
    pressKey(m_line.input(), Qt::Key_Up);
    EXPECT_EQ(m_line.input().text(), QStringLiteral("LINE"));
    pressKey(m_line.input(), Qt::Key_Down);
    pressKey(m_line.input(), Qt::Key_Down);
    EXPECT_EQ(m_line.input().text(), QStringLiteral("half"));
}

TEST_F(CommandLineTest, NamesAreOfferedFromTheFirstLetterOn) {
    m_line.setNames([] {
        return QStringList{QStringLiteral("LAYER"), QStringLiteral("LUPREC"),
                           QStringLiteral("UNDO")};
    });
    typeText(m_line.input(), QStringLiteral("l"));
    QCompleter& completer = *m_line.input().completer();
    EXPECT_EQ(completer.completionCount(), 2);
    EXPECT_EQ(completer.currentCompletion(), QStringLiteral("LAYER"));
}

TEST_F(CommandLineTest, TextTypedElsewhereBeginsTheLine) {
    m_line.begin(QStringLiteral("l"));
    EXPECT_EQ(m_line.input().text(), QStringLiteral("l"));
}

}  // namespace
}  // namespace workbench::desktop
