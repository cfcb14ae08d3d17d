#include "tests/support/bench.h"

#include <hostapi/vxdb18.h>

#include <array>
#include <cstdio>
#include <memory>
#include <set>
#include <sstream>
#include <string>

namespace {

class EntryPointTest : public support::Bench {};

TEST_F(EntryPointTest, EveryMessageAnswersZeroAndUnknownOnesDoNothing) {
    ASSERT_TRUE(load());
    const auto entryPoint = exported<VxRxEntryPointFn>("vxrxEntryPoint");
    ASSERT_NE(entryPoint, nullptr);
    takeCalls();
    for (const int message : {0, 3, 4, 100, -1})
        EXPECT_EQ(entryPoint(message, nullptr), 0);
    EXPECT_TRUE(takeCalls().empty());
}

TEST_F(EntryPointTest, HandshakeGivesTheVersionOfTheInterface) {
    ASSERT_TRUE(load());
    EXPECT_EQ(exported<VxRxGetApiVersionFn>("vxrxGetApiVersion")(), kVxRxApiVersion);
}

// The sanitizers and the coverage counters add symbols of their own.
#if !defined(__SANITIZE_ADDRESS__)

/// What a command prints.
std::string outputOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 4096> buffer{};
    while (pipe != nullptr && fgets(buffer.data(), buffer.size(), pipe.get()) != nullptr) {
        output += buffer.data();
    }
    return output;
}

TEST(ExportListTest, FileExportsTheInterfaceAndNothingElse) {
    std::istringstream lines(
        outputOf("nm -D --defined-only --format=posix " WORKBENCH_BIN_DIR "/VxDashboard.qlx"));
    std::set<std::string> exports;
    for (std::string line; std::getline(lines, line);) {
        exports.insert(line.substr(0, line.find(' ')));
    }
    EXPECT_EQ(exports, (std::set<std::string>{"VxDaAddOrRemoveReactor", "VxDaGetCustomControl",
                                              "VxDaGetToolPanelItems", "VxDaGetVisiblePanels",
                                              "VxDaInvalidateDashboard", "VxDaNotifyDashboard",
                                              "VxDaSetVisiblePanels", "setForce3DNavUpdate",
                                              "vxrxEntryPoint", "vxrxGetApiVersion"}));
}

TEST(ExportListTest, FileNeedsTheStandardLibraryAlone) {
    std::istringstream lines(
        outputOf("objdump -p " WORKBENCH_BIN_DIR "/VxDashboard.qlx | grep NEEDED"));
    std::set<std::string> needed;
    for (std::string line; std::getline(lines, line);) {
        needed.insert(line.substr(line.find_last_of(' ') + 1));
    }
    for (const std::string& library : needed) {
        EXPECT_TRUE(library.starts_with("libstdc++") || library.starts_with("libgcc_s") ||
                    library.starts_with("libm.") || library.starts_with("libc.") ||
                    library.starts_with("ld-linux"))
            << library;
    }
    EXPECT_FALSE(needed.empty());
}

#endif

}  // namespace
