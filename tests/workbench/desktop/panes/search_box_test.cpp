#include "workbench/desktop/panes/search_box.h"

#include "tests/support/bench.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QMouseEvent>
#include <memory>

namespace workbench::desktop {

namespace {

class SearchBoxTest : public support::Bench {
protected:
    SearchBoxTest() {
        showDashboard();
        box = std::make_unique<SearchBox>(bench().toolkit());
        box->setOnChosen([this](const SearchHit& hit) { chosen.push_back(hit.label); });
        box->setOnLeft([this] { ++left; });
        box->show();
        box->activateWindow();
        QApplication::processEvents();
        box->setFocus();
    }

    QAbstractItemView& list() { return *box->findChild<QCompleter*>()->popup(); }
    void press(int key, const QString& text = {}) {
        QWidget& receiver = list().isVisible() ? static_cast<QWidget&>(list()) : *box;
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&receiver, &event);
    }
    void type(const char* text) {
        for (const QChar letter : QString::fromUtf8(text))
            press(Qt::Key_unknown, letter);
    }
    QString row(int number) { return list().model()->index(number, 0).data().toString(); }
    void clickRow(int number) {
        const QPointF place = list().visualRect(list().model()->index(number, 0)).center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, list().viewport()->mapToGlobal(place), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QApplication::sendEvent(list().viewport(), &event);
        }
    }

    std::unique_ptr<SearchBox> box;
    QStringList chosen;
    int left = 0;
};

}  // namespace

TEST_F(SearchBoxTest, NothingFoundIsSaidAndCannotBeChosen) {
    type("qqq");
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(list().model()->rowCount(), 1);
    EXPECT_EQ(row(0), QStringLiteral("Nothing found"));
    press(Qt::Key_Return);
    clickRow(0);
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(SearchBoxTest, TheListTellsToolAndPanel) {
    type("walk");
    ASSERT_TRUE(list().isVisible());
    ASSERT_EQ(list().model()->rowCount(), 2);
    EXPECT_EQ(row(0), QStringLiteral("Walk \u2013 3D navigation"));
    EXPECT_EQ(row(1), QStringLiteral("Walk and fly settings \u2013 3D navigation"));
}

TEST_F(SearchBoxTest, EnterTakesTheBestHit) {
    type("walk");
    press(Qt::Key_Return);
    EXPECT_EQ(chosen, QStringList{QStringLiteral("Walk")});
    EXPECT_FALSE(list().isVisible());
    EXPECT_EQ(box->text(), QString());
    press(Qt::Key_Return);
    EXPECT_EQ(chosen.size(), 1);
}

TEST_F(SearchBoxTest, EnterTakesTheMarkedHit) {
    type("walk");
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(box->text(), QStringLiteral("walk"));
    press(Qt::Key_Enter);
    EXPECT_EQ(chosen, QStringList{QStringLiteral("Walk and fly settings")});
}

TEST_F(SearchBoxTest, AClickTakesTheHitOnce) {
    type("walk");
    clickRow(1);
    EXPECT_EQ(chosen, QStringList{QStringLiteral("Walk and fly settings")});
    EXPECT_EQ(box->text(), QString());
    EXPECT_FALSE(list().isVisible());
}

TEST_F(SearchBoxTest, EscapeClearsAndGivesTheFocusBack) {
    type("walk");
    press(Qt::Key_Escape);
    EXPECT_EQ(left, 1);
    EXPECT_EQ(box->text(), QString());
    EXPECT_FALSE(list().isVisible());
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(SearchBoxTest, FieldAndListHaveNames) {
    EXPECT_FALSE(box->accessibleName().isEmpty());
    EXPECT_FALSE(box->placeholderText().isEmpty());
    EXPECT_FALSE(list().accessibleName().isEmpty());
}

}  // namespace workbench::desktop
