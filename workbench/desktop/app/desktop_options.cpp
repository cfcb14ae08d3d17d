#include "workbench/desktop/app/desktop_options.h"

#include "workbench/toolkit/shade.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace workbench::desktop {

namespace {

constexpr double kSmallestScale = 1.0;
constexpr double kLargestScale = 4.0;
constexpr int kSmallestSide = 300;  // pixels
constexpr int kLargestSide = 8000;

/// "1280x860" as a size; nothing for another text.
std::optional<QSize> sizeOf(const std::string& text) {
    int width = 0;
    int height = 0;
    char rest = 0;
    if (std::sscanf(text.c_str(), "%dx%d%c", &width, &height, &rest) != 2)
        return {};
    const auto isSide = [](int side) { return side >= kSmallestSide && side <= kLargestSide; };
    if (!isSide(width) || !isSide(height))
        return {};
    return QSize(width, height);
}

std::string checkSize(const std::string& text) {
    return sizeOf(text) ? std::string() : "a size is WIDTHxHEIGHT, each 300 to 8000";
}

std::string checkShade(const std::string& text) {
    return shadeOf(text) ? std::string() : "there is no theme \"" + text + "\": light or dark";
}

bool endsWith(const std::string& text, std::string_view end) {
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

}  // namespace

std::optional<DesktopOptions> readOptions(int count, char** arguments, int& code) {
    // What follows "--" is the script's, options too.
    char** const end = arguments + count;
    char** const cut = std::find(arguments, end, std::string_view("--"));
    DesktopOptions options;
    std::string file;
    std::string shade = nameOf(options.shade);
    std::string size;

    CLI::App program("The workbench in a window: the dashboard beside a drawing");
    program.add_option("file", file, "A drawing to open (.json), or a script to run (.lua)");
    program.add_option("arguments", options.scriptArguments, "Arguments of the script");
    addStartOptions(program, options);
    program.add_option("--snapshot", options.snapshot, "Write a picture (PNG) and end");
    program.add_flag("--whole-window", options.wholeWindow, "The picture shows the whole window");
    program.add_flag("--stay", options.stay, "Leave the window open behind a script");
    program.add_option("--theme", shade, "light or dark")->check(checkShade);
    program.add_option("--scale", options.scale, "Pixels a logical pixel, 1 to 4")
        ->check(CLI::Range(kSmallestScale, kLargestScale));
    program.add_option("--size", size, "Of the window, such as 1280x860")->check(checkSize);
    program.add_option("--workspace", options.workspace, "To begin with, such as Drafting");
    try {
        program.parse(static_cast<int>(cut - arguments), arguments);
    } catch (const CLI::ParseError& error) {
        code = program.exit(error) == 0 ? kExitPassed : kExitUsage;
        return {};
    }
    if (cut != end)
        options.scriptArguments.insert(options.scriptArguments.end(), cut + 1, end);
    if (endsWith(file, ".lua"))
        options.script = file;
    else if (!file.empty())
        options.drawing = file;
    options.shade = *shadeOf(shade);
    if (!size.empty())
        options.size = *sizeOf(size);
    return options;
}

}  // namespace workbench::desktop
