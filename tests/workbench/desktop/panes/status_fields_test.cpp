#include "workbench/desktop/panes/status_fields.h"

#include "tests/support/bench.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <stdexcept>

namespace workbench::desktop {

namespace {

/// Counts how often a widget is painted.
class PaintCounter final : public QObject {
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

class StatusFieldsTest : public support::Bench {
protected:
    QLabel& field(const char* name) {
        for (QLabel* label : fields.findChildren<QLabel*>()) {
            if (label->accessibleName() == QLatin1String(name))
                return *label;
        }
        throw std::invalid_argument(name);
    }
    QString shown(const char* name) {
        fields.refresh(bench());
        return field(name).text();
    }

    StatusFields fields;
};

}  // namespace

TEST_F(StatusFieldsTest, WithoutADocumentThereIsNoDrawing) {
    EXPECT_EQ(shown("Document"), QStringLiteral("No drawing"));
    EXPECT_EQ(shown("Space"), QString());
    EXPECT_EQ(shown("Running command"), QString());
    EXPECT_EQ(shown("Clean screen"), QString());
    EXPECT_TRUE(field("Space").isHidden());
}

TEST_F(StatusFieldsTest, TheActiveDocumentIsNamed) {
    newDocument(L"A");
    newDocument(L"<b>B</b>");
    EXPECT_EQ(shown("Document"), QStringLiteral("<b>B</b>"));
    EXPECT_EQ(field("Document").textFormat(), Qt::PlainText);
    activateDocument(L"A");
    EXPECT_EQ(shown("Document"), QStringLiteral("A"));
}

TEST_F(StatusFieldsTest, TheSpaceIsTheModelOrTheLayoutOnShow) {
    openDrawing("examples/house.json");
    EXPECT_EQ(shown("Space"), QStringLiteral("Model"));
    set(L"TILEMODE", 0);
    EXPECT_EQ(shown("Space"), QStringLiteral("Plan"));
}

TEST_F(StatusFieldsTest, TheRunningCommandTellsWhatItAsksFor) {
    newDocument(L"A");
    begin(L"WAITING");
    EXPECT_EQ(shown("Running command"), QStringLiteral("WAITING \u2013 Enter to end:"));
    type(L"\n");
    EXPECT_EQ(shown("Running command"), QString());
}

TEST_F(StatusFieldsTest, TheCleanScreenIsTold) {
    newDocument(L"A");
    type(L"CLEANSCREENON\n");
    EXPECT_EQ(shown("Clean screen"), QStringLiteral("Clean screen"));
    type(L"CLEANSCREENOFF\n");
    EXPECT_EQ(shown("Clean screen"), QString());
}

TEST_F(StatusFieldsTest, ALongTextIsShortenedAndWholeInItsTooltip) {
    const QString name(200, QLatin1Char('n'));
    newDocument(name.toStdWString());
    EXPECT_LT(shown("Document").size(), name.size());
    EXPECT_EQ(field("Document").toolTip(), name);
    newDocument(L"B");
    EXPECT_EQ(shown("Document"), QStringLiteral("B"));
    EXPECT_EQ(field("Document").toolTip(), QString());
}

TEST_F(StatusFieldsTest, OnlyAFieldThatChangedIsPaintedAgain) {
    newDocument(L"A");
    fields.resize(600, 24);
    fields.refresh(bench());
    fields.show();
    QApplication::processEvents();
    PaintCounter document;
    field("Document").installEventFilter(&document);
    fields.refresh(bench());
    QApplication::processEvents();
    EXPECT_EQ(document.count, 0);
    newDocument(L"B");
    fields.refresh(bench());
    QApplication::processEvents();
    EXPECT_EQ(document.count, 1);
}

}  // namespace workbench::desktop
