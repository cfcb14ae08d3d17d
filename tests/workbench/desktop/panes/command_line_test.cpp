#include "workbench/desktop/panes/command_line.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace workbench::desktop {

namespace {

class CommandLineTest : public testing::Test {
protected:
    CommandLineTest() {
        line.setOnEnter([this](const QString& text) { entered.append(text); });
        line.setOnCancel([this] { ++cancelled; });
        line.setNames([this] {
            ++asked;
            return QStringList{QStringLiteral("LAYER"), QStringLiteral("LAYLOCKFADECTL"),
                               QStringLiteral("PAN")};
        });
        line.show();
        line.activateWindow();
        QApplication::processEvents();
        line.input().setFocus();
    }

    QAbstractItemView& list() { return *line.input().completer()->popup(); }
    /// The keyboard's way: an open list gets the keys.
    void press(int key, const QString& text = {}) {
        QWidget& receiver = list().isVisible() ? static_cast<QWidget&>(list()) : line.input();
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&receiver, &event);
    }
    void type(const QString& text) {
        for (const QChar letter : text)
            press(Qt::Key_unknown, letter);
    }
    void enter(const QString& text) {
        type(text);
        press(Qt::Key_Return);
    }
    QStringList log() {
        return line.findChild<QPlainTextEdit*>()->toPlainText().split(QLatin1Char('\n'));
    }
    QStringList offered() {
        QStringList names;
        const QAbstractItemModel& model = *line.input().completer()->completionModel();
        for (int row = 0; list().isVisible() && row < model.rowCount(); ++row)
            names.append(model.index(row, 0).data().toString());
        return names;
    }

    CommandLine line;
    QStringList entered;
    int cancelled = 0;
    int asked = 0;
};

}  // namespace

TEST_F(CommandLineTest, EnterSendsTheLineAndLogsItBehindThePrompt) {
    line.setPrompt(QStringLiteral("Lens length:"));
    enter(QStringLiteral("35"));
    EXPECT_EQ(entered, QStringList{QStringLiteral("35")});
    EXPECT_EQ(line.input().text(), QString());
    EXPECT_EQ(log(), QStringList{QStringLiteral("Lens length: 35")});
}

TEST_F(CommandLineTest, AnEmptyLineIsAnAnswerTooButNoHistory) {
    press(Qt::Key_Enter);
    EXPECT_EQ(entered, QStringList{QString()});
    press(Qt::Key_Up);
    EXPECT_EQ(line.input().text(), QString());
}

TEST_F(CommandLineTest, AnEmptyPromptIsThatOfRest) {
    auto* prompt = line.findChild<QLabel*>();
    line.setPrompt(QStringLiteral("Point:"));
    EXPECT_EQ(prompt->text(), QStringLiteral("Point:"));
    line.setPrompt({});
    EXPECT_EQ(prompt->text(), QStringLiteral("Command:"));
}

TEST_F(CommandLineTest, TheArrowsWalkThroughEarlierLinesAndBackToTheTypedOne) {
    enter(QStringLiteral("first"));
    enter(QStringLiteral("second"));
    type(QStringLiteral("thi"));
    press(Qt::Key_Up);
    EXPECT_EQ(line.input().text(), QStringLiteral("second"));
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(line.input().text(), QStringLiteral("first"));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(line.input().text(), QStringLiteral("thi"));
}

TEST_F(CommandLineTest, ALineThatIsEnteredTwiceInARowIsRememberedOnce) {
    enter(QStringLiteral("first"));
    enter(QStringLiteral("second"));
    enter(QStringLiteral("second"));
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(line.input().text(), QStringLiteral("first"));
}

TEST_F(CommandLineTest, TheOldestOfAHundredAndOneLinesIsForgotten) {
    for (int number = 0; number <= CommandLine::kMostHistory; ++number)
        enter(QString::number(number));
    for (int step = 0; step <= CommandLine::kMostHistory; ++step)
        press(Qt::Key_Up);
    EXPECT_EQ(line.input().text(), QStringLiteral("1"));
}

TEST_F(CommandLineTest, EscapeCancelsAndClears) {
    type(QStringLiteral("la"));
    ASSERT_TRUE(list().isVisible());
    press(Qt::Key_Escape);
    EXPECT_EQ(cancelled, 1);
    EXPECT_EQ(line.input().text(), QString());
    EXPECT_FALSE(list().isVisible());
    EXPECT_TRUE(entered.isEmpty());
}

TEST_F(CommandLineTest, NamesAreOfferedByTheirBeginningInAnyCase) {
    type(QStringLiteral("lay"));
    EXPECT_EQ(offered(), (QStringList{QStringLiteral("LAYER"), QStringLiteral("LAYLOCKFADECTL")}));
    type(QStringLiteral("l"));
    EXPECT_EQ(offered(), QStringList{QStringLiteral("LAYLOCKFADECTL")});
    EXPECT_EQ(asked, 1);
}

TEST_F(CommandLineTest, NamesAreOfferedBehindMarks) {
    type(QStringLiteral("'_p"));
    EXPECT_EQ(offered(), QStringList{QStringLiteral("'_PAN")});
}

TEST_F(CommandLineTest, ANewLineAsksForTheNamesAfresh) {
    enter(QStringLiteral("pan"));
    type(QStringLiteral("p"));
    EXPECT_EQ(asked, 2);
}

TEST_F(CommandLineTest, EnterOnANameOfTheListSendsIt) {
    type(QStringLiteral("lay"));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(entered, QStringList{QStringLiteral("LAYLOCKFADECTL")});
    EXPECT_EQ(line.input().text(), QString());
    EXPECT_FALSE(list().isVisible());
}

TEST_F(CommandLineTest, EnterBesideTheOpenListSendsWhatWasTyped) {
    type(QStringLiteral("la"));
    ASSERT_TRUE(list().isVisible());
    press(Qt::Key_Return);
    EXPECT_EQ(entered, QStringList{QStringLiteral("la")});
}

TEST_F(CommandLineTest, TheLogKeepsTheLastLines) {
    for (int number = 0; number <= CommandLine::kMostLines; ++number)
        line.echo(QString::number(number) + QLatin1Char('\n'));
    EXPECT_EQ(log().size(), CommandLine::kMostLines);
    EXPECT_EQ(log().first(), QStringLiteral("1"));
    EXPECT_EQ(log().last(), QStringLiteral("500"));
}

TEST_F(CommandLineTest, ATextThatWasTypedElsewhereBeginsTheLine) {
    line.setFocus();
    line.begin(QStringLiteral("p"));
    EXPECT_EQ(line.input().text(), QStringLiteral("p"));
    EXPECT_TRUE(line.input().hasFocus());
}

TEST_F(CommandLineTest, ADisabledLineTakesNothing) {
    line.setEnabled(false);
    enter(QStringLiteral("pan"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(entered.isEmpty());
    EXPECT_EQ(cancelled, 0);
    EXPECT_EQ(line.input().text(), QString());
}

TEST_F(CommandLineTest, EachPartHasAName) {
    EXPECT_EQ(line.input().accessibleName(), QStringLiteral("Command line"));
    EXPECT_EQ(line.findChild<QPlainTextEdit*>()->accessibleName(),
              QStringLiteral("Earlier commands"));
    EXPECT_EQ(list().accessibleName(), QStringLiteral("Names that fit"));
}

}  // namespace workbench::desktop
