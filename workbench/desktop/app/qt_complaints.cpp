#include "workbench/desktop/app/qt_complaints.h"

#include "workbench/startup/start_options.h"

#include <QString>
#include <cstdio>
#include <cstdlib>

namespace workbench::desktop {

namespace {

/// What Qt said last before it gave up; it tells the reason better than the last word itself.
QString& lastWarning() {
    static QString warning;
    return warning;
}

bool& hasStarted() {
    static bool started = false;
    return started;
}

[[noreturn]] void giveUp(const QString& reason) {
    std::fprintf(stderr, "workbench-desktop: %s\n", qPrintable(reason));
    std::fflush(stderr);
    // Nothing of Qt can be relied upon any more, its own ending included.
    std::_Exit(kExitUsage);
}

bool isLostScreen(const QString& text) {
    return text.contains(QLatin1String("connection broke")) ||
           text.contains(QLatin1String("wl_display"));
}

/// What drawing without a screen can't do, and need not.
bool isIdle(const QString& text) {
    return text.startsWith(QLatin1String("This plugin does not support")) ||
           text.contains(QLatin1String("XDG_RUNTIME_DIR"));
}

void take(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (isLostScreen(text))
        giveUp(QStringLiteral("the screen has gone away"));
    if (type == QtFatalMsg)
        giveUp(QStringLiteral("no window can be opened: ") +
               (lastWarning().isEmpty() ? text.section(QLatin1Char('\n'), 0, 0) : lastWarning()));
    if ((type != QtWarningMsg && type != QtCriticalMsg) || isIdle(text))
        return;
    lastWarning() = text.section(QLatin1Char('\n'), 0, 0);
    if (hasStarted())
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

}  // namespace

void installComplaints() {
    qInstallMessageHandler(take);
}

void noteStarted() {
    hasStarted() = true;
}

}  // namespace workbench::desktop
