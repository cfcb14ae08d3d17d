#include "workbench/desktop/mirror/accessible.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <clocale>

// The window's tests draw offscreen, with the font that all pictures are made with.
int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    workbench::desktop::installAccessibility();
    std::setlocale(LC_NUMERIC, "C");
    return RUN_ALL_TESTS();
}
