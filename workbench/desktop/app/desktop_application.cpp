#include "workbench/desktop/app/desktop_application.h"

#include "workbench/base/input_error.h"
#include "workbench/desktop/app/desktop_options.h"
#include "workbench/desktop/app/desktop_state.h"
#include "workbench/desktop/app/file_actions.h"
#include "workbench/desktop/app/host_actions.h"
#include "workbench/desktop/app/main_window.h"
#include "workbench/desktop/app/qt_complaints.h"
#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/mirror/accessible.h"
#include "workbench/editor/editor.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/script/script_engine.h"
#include "workbench/startup/journal_file.h"
#include "workbench/startup/open_dashboard.h"

#include <QApplication>
#include <QStyleFactory>
#include <clocale>
#include <cstdlib>
#include <exception>
#include <iostream>

namespace workbench::desktop {

namespace {

constexpr const char* kPlatform = "QT_QPA_PLATFORM";

bool hasScreen() {
    const auto isSet = [](const char* name) {
        const char* const value = std::getenv(name);
        return value != nullptr && *value != '\0';
    };
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
}

/// Draws into memory where there is no screen. Throws if nobody would ever see the window.
void choosePlatform(const DesktopOptions& options) {
    if (!qEnvironmentVariableIsSet(kPlatform) && !hasScreen())
        qputenv(kPlatform, "offscreen");
    if (qgetenv(kPlatform) == "offscreen" && !options.endsByItself())
        throw InputError("workbench-desktop",
                         "there is no screen: give a script, or --snapshot and a file");
}

void dressApplication() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(fontOf(nullptr));
    QApplication::setApplicationDisplayName(QStringLiteral("Workbench"));
    // Qt takes the user's locale; numbers of scripts and files are always written the same way.
    std::setlocale(LC_NUMERIC, "C");
    installAccessibility();
}

/// Opens the drawing with the dashboard, as a user finds it.
void openFirst(Workbench& workbench, const DesktopOptions& options) {
    openDashboard(workbench, options.drawing);
    if (!options.workspace.empty())
        switchWorkspace(workbench, options.workspace);
    else if (!DesktopState::exists(workbench.profiles().folder()))
        showPanelsOfWorkspace(workbench);
    letHostRun(workbench);
}

int runScript(Workbench& workbench, const DesktopOptions& options) {
    const ScriptResult result = runScriptFile(workbench, options.script, options.scriptArguments);
    if (!result.passed)
        std::cerr << result.complaint << '\n';
    return result.passed ? kExitPassed : kExitFailed;
}

int runWindow(const DesktopOptions& options) {
    Workbench workbench(options.workbench);
    for (const std::string& complaint : workbench.profiles().complaints())
        std::cerr << complaint << '\n';
    const JournalFile journal(workbench.journal(), options.journalFile);
    MainWindow window(workbench, options.shade);
    window.resize(options.size);
    workbench.setPhotographer([&window, &options](const std::filesystem::path& file) {
        window.takePicture(file, options.wholeWindow);
    });
    window.show();
    int code = kExitPassed;
    // A script has the clock from its beginning.
    if (options.script.empty())
        openFirst(workbench, options);
    else
        code = runScript(workbench, options);
    window.stage().pump.resume();
    if (Document* first = workbench.editor().documents().active(); first && options.script.empty())
        window.fileActions().files().setFile(*first, options.drawing);
    if (!options.endsByItself())
        window.recall();
    if (!options.snapshot.empty())
        window.takePicture(options.snapshot, options.wholeWindow);
    return options.endsByItself() ? code : QApplication::exec();
}

int run(int count, char** arguments) {
    int code = kExitPassed;
    const std::optional<DesktopOptions> options = readOptions(count, arguments, code);
    if (!options)
        return code;
    choosePlatform(*options);
    qputenv("QT_SCALE_FACTOR", QByteArray::number(options->scale));
    installComplaints();
    const QApplication application(count, arguments);
    noteStarted();
    dressApplication();
    return runWindow(*options);
}

}  // namespace

int runDesktop(int count, char** arguments) {
    try {
        return run(count, arguments);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return kExitUsage;
    }
}

}  // namespace workbench::desktop
