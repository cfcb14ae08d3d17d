#include "workbench/desktop/app/desktop_state.h"

#include "workbench/base/input_error.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>

namespace workbench::desktop {
namespace {

class DesktopStateTest : public testing::Test {
protected:
    void write(const char* text) { std::ofstream(m_folder / "desktop.json") << text; }
    DesktopState read() {
        m_complaint.clear();
        return DesktopState::read(m_folder, m_complaint);
    }

    QTemporaryDir m_temporary;
    std::filesystem::path m_folder = m_temporary.path().toStdString();
    QString m_complaint;
};

TEST_F(DesktopStateTest, IsReadAsItWasWritten) {
    EXPECT_FALSE(DesktopState::exists(m_folder));
    DesktopState{Shade::Dark, {L"Layers", L"J\u00e4ger"}, "/some/where"}.write(m_folder);
    EXPECT_TRUE(DesktopState::exists(m_folder));
    const DesktopState state = read();
    EXPECT_EQ(state.shade, Shade::Dark);
    EXPECT_EQ(state.lastFolder, "/some/where");
    EXPECT_EQ(state.rolledUp, (std::vector<std::wstring>{L"Layers", L"J\u00e4ger"}));
    EXPECT_TRUE(m_complaint.isEmpty());
}

TEST_F(DesktopStateTest, WithoutAFileItIsFresh) {
    const DesktopState state = read();
    EXPECT_FALSE(state.shade);
    EXPECT_TRUE(state.rolledUp.empty());
    EXPECT_TRUE(m_complaint.isEmpty());
}

TEST_F(DesktopStateTest, WhatCannotBeTakenIsToldAndTheRestKept) {
    write("{ \"theme\": \"blue\", \"rolledUpPanels\": [\"Light\"] }");
    EXPECT_EQ(read().rolledUp, std::vector<std::wstring>{L"Light"});
    EXPECT_TRUE(m_complaint.endsWith(QLatin1String("desktop.json: /theme: light or dark")));
    write("{ \"theme\": ");
    EXPECT_FALSE(read().shade);
    EXPECT_FALSE(m_complaint.isEmpty());
    write("[]");
    read();
    EXPECT_TRUE(m_complaint.endsWith(QLatin1String("not an object")));
}

TEST_F(DesktopStateTest, AThemeOfAnotherVersionIsWrittenAgainUntilOneIsChosen) {
    write("{ \"theme\": \"blue\", \"rolledUpPanels\": [] }");
    DesktopState state = read();
    EXPECT_FALSE(state.shade);
    EXPECT_EQ(state.unknownTheme, "blue");
    state.rolledUp = {L"Light"};
    state.write(m_folder);
    EXPECT_EQ(read(), state);
    EXPECT_EQ(m_complaint.count(QLatin1String("/theme")), 1);
    state.shade = Shade::Dark;
    state.write(m_folder);
    EXPECT_EQ(read().shade, Shade::Dark);
    EXPECT_EQ(read().unknownTheme, "");
    EXPECT_TRUE(m_complaint.isEmpty());
}

TEST_F(DesktopStateTest, AFolderThatCannotBeWrittenIsTold) {
    EXPECT_THROW(DesktopState{}.write("/no/such/folder"), InputError);
}

}  // namespace
}  // namespace workbench::desktop
