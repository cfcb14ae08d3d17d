#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace workbench {

namespace {

struct Outcome {
    int code = -1;
    std::string output;  // standard error, then what went to standard output
};

/// Runs the program itself, as its users do.
class CommandLineTest : public testing::Test {
protected:
    std::string write(const std::string& name, const std::string& text) const {
        return m_folder.write(name, text).string();
    }
    std::string path(const std::string& name) const { return (m_folder.path / name).string(); }
    static std::string read(const std::string& file) {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }

    static Outcome workbench(const std::string& arguments) {
        const std::string command = std::string(WORKBENCH_BIN_DIR) + "/workbench " + arguments;
        FILE* pipe = popen(("cd " PROJECT_SOURCE_ROOT " && " + command + " 2>&1").c_str(), "r");
        Outcome outcome;
        std::array<char, 4096> part{};
        while (const std::size_t length = std::fread(part.data(), 1, part.size(), pipe))
            outcome.output.append(part.data(), length);
        const int status = pclose(pipe);
        outcome.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        return outcome;
    }

private:
    support::TemporaryFolder m_folder;
};

TEST_F(CommandLineTest, PassingScriptEndsWithZero) {
    const Outcome outcome =
        workbench("run " + write("good.lua", "print(arg[1], ...)") + " a -- --b");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.output, "a\ta\t--b\n");
}

TEST_F(CommandLineTest, FailedCheckEndsWithOneAndTellsThePlace) {
    const std::string script = write("bad.lua", "\nassert(false, 'no layer')");
    const Outcome outcome = workbench("run " + script);
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.output, script + ":2: no layer\n");
}

TEST_F(CommandLineTest, LuaErrorEndsWithOne) {
    EXPECT_EQ(workbench("run " + write("bad.lua", "wb.nope()")).code, 1);
    EXPECT_EQ(workbench("run " + write("worse.lua", "local = 1")).code, 1);
}

TEST_F(CommandLineTest, UnreadableScriptEndsWithTwo) {
    const Outcome outcome = workbench("run " + path("none.lua"));
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.output, path("none.lua") + ": cannot be opened: No such file or directory\n");
}

TEST_F(CommandLineTest, WrongUsageEndsWithTwo) {
    for (const char* arguments : {"", "frob", "run", "check", "run a.lua --frob", "show a b"}) {
        const Outcome outcome = workbench(arguments);
        EXPECT_EQ(outcome.code, 2) << arguments;
        EXPECT_NE(outcome.output, "") << arguments;
    }
}

TEST_F(CommandLineTest, HelpEndsWithZero) {
    EXPECT_EQ(workbench("--help").code, 0);
    EXPECT_EQ(workbench("run --help").code, 0);
}

TEST_F(CommandLineTest, BrokenMenuEndsWithTwoAndTellsThePlace) {
    const std::string script = write("good.lua", "");
    const std::string menu = write("menu.json", "{\n  \"panels\": 3\n}");
    const Outcome outcome = workbench("run --panels " + menu + " " + script);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.output.find(menu + ":"), 0U) << outcome.output;
}

TEST_F(CommandLineTest, OptionsMayFollowTheScript) {
    const std::string script = write("journal.lua", "wb.new('A') wb.set('TILEMODE', 0)");
    const Outcome outcome = workbench("run " + script + " --journal " + path("journal.jsonl") +
                                      " --profile-dir " + path("profiles") + " --locale de_DE");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.output, "");
    const std::string journal = read(path("journal.jsonl"));
    EXPECT_NE(journal.find(R"({"t":0,"kind":"var","name":"TILEMODE","old":1,"new":0})"),
              std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(path("profiles")));
}

TEST_F(CommandLineTest, JournalIsWrittenUpToTheFailure) {
    const std::string script = write("bad.lua", "wb.new('A') wb.journal() error('stop')");
    EXPECT_EQ(workbench("run --journal " + path("journal.jsonl") + " " + script).code, 1);
    EXPECT_NE(read(path("journal.jsonl")).find(R"("text":"new A")"), std::string::npos);
}

TEST_F(CommandLineTest, JournalThatCantBeWrittenEndsWithTwo) {
    const std::string script = write("good.lua", "");
    EXPECT_EQ(workbench("run --journal " + path("none/journal.jsonl") + " " + script).code, 2);
}

TEST_F(CommandLineTest, ShowPrintsTheTreeAndTheRoadOfAGesture) {
    const Outcome outcome = workbench("show");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_NE(outcome.output.find("[LayerLockTransparencySliderControl]"), std::string::npos);
    EXPECT_NE(outcome.output.find("300 ms  var      LAYLOCKFADECTL: 50 -> 40\n"),
              std::string::npos);
}

TEST_F(CommandLineTest, ShowTakesADrawing) {
    EXPECT_EQ(workbench("show examples/house.json").code, 0);
    EXPECT_EQ(workbench("show " + path("none.json")).code, 2);
}

TEST_F(CommandLineTest, FilesAreChecked) {
    const Outcome good = workbench("check examples/panels.json examples/house.json");
    EXPECT_EQ(good.code, 0);
    EXPECT_EQ(good.output, "examples/panels.json: good\nexamples/house.json: good\n");
    const Outcome bad = workbench("check examples/panels.json " + write("bad.json", "{"));
    EXPECT_EQ(bad.code, 2);
    EXPECT_NE(bad.output.find(path("bad.json") + ":1"), std::string::npos);
}

}  // namespace

}  // namespace workbench
