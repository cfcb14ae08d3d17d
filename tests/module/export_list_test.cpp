#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

namespace {

using Names = std::set<std::string>;

/// The lines that a command prints.
Names linesOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 4096> buffer{};
    while (pipe != nullptr && fgets(buffer.data(), buffer.size(), pipe.get()) != nullptr)
        output += buffer.data();
    Names lines;
    std::istringstream stream(output);
    for (std::string line; std::getline(stream, line);)
        lines.insert(line);
    return lines;
}

std::string pathOf(const std::string& file) {
    return "'" WORKBENCH_BIN_DIR "/" + file + "'";
}

/// The names that a library defines for others.
Names exportsOf(const std::string& file) {
    Names exports;
    for (const std::string& line : linesOf("nm -D --defined-only --format=posix " + pathOf(file)))
        exports.insert(line.substr(0, line.find(' ')));
    return exports;
}

/// The libraries that a library names as its own needs.
Names needsOf(const std::string& file) {
    Names needs;
    for (const std::string& line : linesOf("objdump -p " + pathOf(file))) {
        if (line.find("NEEDED") != std::string::npos)
            needs.insert(line.substr(line.find_last_of(' ') + 1));
    }
    return needs;
}

bool isOfTheStandardLibrary(std::string_view library) {
    const auto begins = [library](std::string_view start) { return library.starts_with(start); };
    constexpr std::array kStarts{"libstdc++", "libgcc_s", "libm.", "libc.", "ld-linux"};
    return std::any_of(kStarts.begin(), kStarts.end(), begins);
}

TEST(ExportListTest, FileExportsTheInterfaceAndNothingElse) {
    EXPECT_EQ(exportsOf("VxDashboard.qlx"),
              (Names{"VxDaAddOrRemoveReactor", "VxDaGetCustomControl", "VxDaGetToolPanelItems",
                     "VxDaGetVisiblePanels", "VxDaInvalidateDashboard", "VxDaNotifyDashboard",
                     "VxDaSetVisiblePanels", "setForce3DNavUpdate", "vxrxEntryPoint",
                     "vxrxGetApiVersion"}));
}

TEST(ExportListTest, FileNeedsTheStandardLibraryAlone) {
    const Names needs = needsOf("VxDashboard.qlx");
    for (const std::string& library : needs)
        EXPECT_TRUE(isOfTheStandardLibrary(library)) << library;
    EXPECT_FALSE(needs.empty());
}

TEST(ExportListTest, ResourceModulesExportTheirTableAndNothingElse) {
    for (const char* file : {"VxDashboardRes.dll", "ZORQbtn.xmx", "HouseTools.xmx"})
        EXPECT_EQ(exportsOf(file), Names{"vxResourceDirectory"}) << file;
}

}  // namespace
