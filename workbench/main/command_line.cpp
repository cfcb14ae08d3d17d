#include "workbench/main/command_line.h"

#include "workbench/base/input_error.h"
#include "workbench/base/json_parser.h"
#include "workbench/drawing/drawing_reader.h"
#include "workbench/main/gesture_road.h"
#include "workbench/menu/menu_reader.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/script/script_engine.h"
#include "workbench/startup/journal_file.h"
#include "workbench/startup/start_options.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

namespace {

/// What the command line asks for.
struct Request {
    StartOptions start;
    std::string script;
    std::vector<std::string> scriptArguments;
    std::vector<std::string> files;  // to check
};

void reportComplaints(Workbench& workbench) {
    for (const std::string& complaint : workbench.profiles().complaints()) {
        std::cerr << complaint << '\n';
    }
}

int runScript(const Request& request) {
    Workbench workbench(request.start.workbench);
    reportComplaints(workbench);
    const JournalFile journal(workbench.journal(), request.start.journalFile);
    const ScriptResult result = runScriptFile(workbench, request.script, request.scriptArguments);
    if (!result.passed)
        std::cerr << result.complaint << '\n';
    return result.passed ? kExitPassed : kExitFailed;
}

int showDashboard(const Request& request) {
    Workbench workbench(request.start.workbench);
    reportComplaints(workbench);
    const JournalFile journal(workbench.journal(), request.start.journalFile);
    showGestureRoad(workbench, request.start.drawing, std::cout);
    return kExitPassed;
}

bool isDrawing(const std::string& file) {
    const JsonValue content = parseJson(readWholeFile(file), file);
    return std::find(content.names.begin(), content.names.end(), "format") != content.names.end();
}

/// A file is a drawing if it says so, and otherwise menu data.
void checkFile(const std::string& file) {
    if (isDrawing(file)) {
        drawing::readDrawing(file);
    } else {
        readMenuFile(file);
    }
}

int checkFiles(const Request& request) {
    int code = kExitPassed;
    for (const std::string& file : request.files) {
        try {
            checkFile(file);
            std::cout << file << ": good\n";
        } catch (const InputError& error) {
            std::cerr << error.what() << '\n';
            code = kExitUsage;
        }
    }
    return code;
}

int run(int count, char** arguments) {
    // What follows "--" is the script's, options too.
    char** const end = arguments + count;
    char** const cut = std::find(arguments, end, std::string_view("--"));
    Request request;

    CLI::App program("A stand-in host for the dashboard");
    program.require_subcommand(0, 1);
    CLI::App* runCommand = program.add_subcommand("run", "Run a script against a fresh workbench");
    runCommand->add_option("script", request.script, "The script (Lua 5.4)")->required();
    runCommand->add_option("arguments", request.scriptArguments, "Arguments of the script");
    addStartOptions(*runCommand, request.start);
    CLI::App* showCommand =
        program.add_subcommand("show", "Print the dashboard and the road of one gesture");
    showCommand->add_option("drawing", request.start.drawing, "The drawing to open (JSON)");
    addStartOptions(*showCommand, request.start);
    CLI::App* checkCommand = program.add_subcommand("check", "Check drawings and menu data");
    checkCommand->add_option("files", request.files, "The files (JSON)")->required();

    try {
        program.parse(static_cast<int>(cut - arguments), arguments);
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? kExitPassed : kExitUsage;
    }
    if (cut != end)
        request.scriptArguments.insert(request.scriptArguments.end(), cut + 1, end);
    if (runCommand->parsed())
        return runScript(request);
    if (showCommand->parsed())
        return showDashboard(request);
    if (checkCommand->parsed())
        return checkFiles(request);
    std::cerr
        << "say what to do: run a script, show a drawing or check files (--help tells more)\n";
    return kExitUsage;
}

}  // namespace

int runCommandLine(int count, char** arguments) {
    try {
        return run(count, arguments);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return kExitUsage;
    }
}

}  // namespace workbench
