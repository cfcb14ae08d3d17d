#include "workbench/desktop/app/desktop_options.h"

#include <gtest/gtest.h>

namespace workbench::desktop {
namespace {

struct Read {
    std::optional<DesktopOptions> options;
    int code = -1;
    std::string complaint;
};

Read read(std::vector<std::string> words) {
    words.insert(words.begin(), "workbench-desktop");
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    Read read;
    testing::internal::CaptureStderr();
    read.options = readOptions(static_cast<int>(arguments.size()), arguments.data(), read.code);
    read.complaint = testing::internal::GetCapturedStderr();
    return read;
}

TEST(DesktopOptionsTest, AFileIsADrawingOrAScript) {
    EXPECT_EQ(read({"plan.json"}).options->drawing, "plan.json");
    EXPECT_TRUE(read({"plan.json"}).options->script.empty());
    const Read script = read({"drag.lua", "a", "--", "--b"});
    EXPECT_EQ(script.options->script, "drag.lua");
    EXPECT_EQ(script.options->scriptArguments, (std::vector<std::string>{"a", "--b"}));
    EXPECT_FALSE(read({}).options->drawing.empty()) << "the example";
}

TEST(DesktopOptionsTest, PicturesAndScriptsEndByThemselvesUnlessToldToStay) {
    EXPECT_FALSE(read({}).options->endsByItself());
    EXPECT_TRUE(read({"a.lua"}).options->endsByItself());
    EXPECT_TRUE(read({"--snapshot", "a.png"}).options->endsByItself());
    EXPECT_FALSE(read({"a.lua", "--stay"}).options->endsByItself());
}

TEST(DesktopOptionsTest, TheLookIsRead) {
    const DesktopOptions options =
        *read({"--theme", "dark", "--scale", "2", "--size", "900x700", "--workspace", "Drafting"})
             .options;
    EXPECT_EQ(options.shade, Shade::Dark);
    EXPECT_EQ(options.scale, 2.0);
    EXPECT_EQ(options.size, QSize(900, 700));
    EXPECT_EQ(options.workspace, "Drafting");
}

class BadOptionTest : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(BadOptionTest, IsToldInOneLineWithTheCodeForWrongUsage) {
    const Read bad = read(GetParam());
    EXPECT_FALSE(bad.options);
    EXPECT_EQ(bad.code, 2);
    EXPECT_FALSE(bad.complaint.empty());
}

INSTANTIATE_TEST_SUITE_P(Options, BadOptionTest,
                         testing::Values(std::vector<std::string>{"--theme", "blue"},
                                         std::vector<std::string>{"--scale", "0"},
                                         std::vector<std::string>{"--scale", "9"},
                                         std::vector<std::string>{"--scale", "big"},
                                         std::vector<std::string>{"--size", "12"},
                                         std::vector<std::string>{"--size", "10x10"},
                                         std::vector<std::string>{"--size", "900x700x"},
                                         std::vector<std::string>{"--snapshot"},
                                         std::vector<std::string>{"--no-such-option"}));

}  // namespace
}  // namespace workbench::desktop
