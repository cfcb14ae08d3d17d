#include <gtest/gtest.h>
#include <sys/wait.h>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <cstdio>
#include <fstream>
#include <string>

namespace workbench::desktop {
namespace {

/// The program's output, both streams, and its exit code.
struct Ended {
    std::string output;
    int code = -1;
};

class DesktopApplicationTest : public testing::Test {
protected:
    Ended run(const std::string& arguments, const std::string& environment = {}) {
        const std::string command =
            "cd " PROJECT_SOURCE_ROOT " && env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " +
            environment + " " WORKBENCH_BIN_DIR "/workbench-desktop " + arguments + " 2>&1";
        Ended ended;
        FILE* pipe = popen(command.c_str(), "r");
        char buffer[512];
        while (std::fgets(buffer, sizeof buffer, pipe) != nullptr)
            ended.output += buffer;
        ended.code = WEXITSTATUS(pclose(pipe));
        return ended;
    }
    std::string file(const char* name) {
        return m_folder.filePath(QString::fromLatin1(name)).toStdString();
    }
    std::string script(const char* text) {
        const std::string name = file("script.lua");
        std::ofstream(name) << text;
        return name;
    }

    QTemporaryDir m_folder;
};

TEST_F(DesktopApplicationTest, WithoutAScreenItRunsScripts) {
    const Ended passed = run(script("wb.new('A') assert(wb.var('TILEMODE') == 1)"));
    EXPECT_EQ(passed.code, 0) << passed.output;
    EXPECT_EQ(passed.output, "");
    const Ended failed = run(script("\nassert(false, 'so it is')"));
    EXPECT_EQ(failed.code, 1);
    EXPECT_NE(failed.output.find("script.lua:2: so it is"), std::string::npos) << failed.output;
}

TEST_F(DesktopApplicationTest, ExampleScriptsRunAsTheyDoWithoutAWindow) {
    for (const char* name : {"fade_slider_road", "missing_resources", "walk"}) {
        const Ended ended = run(std::string("examples/scripts/") + name + ".lua");
        EXPECT_EQ(ended.code, 0) << ended.output;
    }
}

TEST_F(DesktopApplicationTest, AScriptTakesPictures) {
    const std::string picture = file("a.png");
    const Ended passed = run(script(("wb.env('ENABLEDASHBOARD', '1') wb.load() "
                                     "wb.open('examples/house.json') wb.type('DASHBOARDOLD\\n') "
                                     "wb.snapshot('" +
                                     picture + "')")
                                        .c_str()));
    EXPECT_EQ(passed.code, 0) << passed.output;
    EXPECT_EQ(QImage(QString::fromStdString(picture)).width(), 235);
}

TEST_F(DesktopApplicationTest, APictureInTwiceTheSizeHasFourTimesThePixels) {
    const std::string picture = file("a.png");
    EXPECT_EQ(run("--scale 2 --theme dark --snapshot " + picture).code, 0);
    EXPECT_EQ(QImage(QString::fromStdString(picture)).width(), 470);
}

TEST_F(DesktopApplicationTest, WithoutAScreenAndWithNothingToDoItSaysSo) {
    const Ended bare = run("");
    EXPECT_EQ(bare.code, 2);
    EXPECT_EQ(bare.output,
              "workbench-desktop: there is no screen: give a script, or --snapshot and a file\n");
}

TEST_F(DesktopApplicationTest, WhatCannotBeDoneIsOneLineWithTheCodeForWrongUsage) {
    const Ended unwritable = run("--snapshot /no/such/folder/a.png");
    EXPECT_EQ(unwritable.code, 2);
    EXPECT_EQ(unwritable.output, "/no/such/folder/a.png: no picture can be written there\n");
    const Ended missing = run("/no/such.json --snapshot " + file("a.png"));
    EXPECT_EQ(missing.code, 2);
    EXPECT_EQ(missing.output, "/no/such.json: cannot be opened: No such file or directory\n");
    const Ended unknown = run("--workspace Nowhere --snapshot " + file("a.png"));
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(unknown.output, "workspace: there is no \"Nowhere\"\n");
}

TEST_F(DesktopApplicationTest, AScreenThatCannotBeHadIsOneLineToo) {
    const Ended plugin = run("--snapshot " + file("a.png"), "QT_QPA_PLATFORM=nope");
    EXPECT_EQ(plugin.code, 2);
    EXPECT_EQ(plugin.output,
              "workbench-desktop: no window can be opened: Could not find the Qt platform plugin "
              "\"nope\" in \"\"\n");
    const Ended display = run("--snapshot " + file("a.png"), "DISPLAY=:87");
    EXPECT_EQ(display.code, 2);
    EXPECT_EQ(display.output,
              "workbench-desktop: no window can be opened: could not connect to display :87\n");
}

TEST_F(DesktopApplicationTest, TheJournalIsWritten) {
    const std::string journal = file("journal.jsonl");
    EXPECT_EQ(run("--snapshot " + file("a.png") + " --journal " + journal).code, 0);
    std::ifstream lines(journal);
    std::string line;
    EXPECT_TRUE(std::getline(lines, line));
    EXPECT_EQ(line.rfind("{\"t\":", 0), 0U) << line;
}

}  // namespace
}  // namespace workbench::desktop
