#include "workbench/host/bar_memory.h"

#include "tests/support/temporary_folder.h"
#include "workbench/host/workbench.h"
#include "workbench/script/script_engine.h"

#include <gtest/gtest.h>

#include <functional>

namespace workbench {
namespace {

class BarMemoryTest : public testing::Test {
protected:
    /// One run of the host, its profiles in the test's folder and the dashboard on show.
    void run(const std::function<void(Workbench&, CQrUiPaletteSet&)>& work) {
        WorkbenchOptions options;
        options.libraryDir = WORKBENCH_BIN_DIR;
        options.panelFile = std::filesystem::path(PROJECT_SOURCE_ROOT) / "examples" / "panels.json";
        options.profileDir = m_folder.path;
        Workbench workbench(options);
        const ScriptResult result = runScriptText(workbench,
                                                  R"(wb.env("ENABLEDASHBOARD", "1") wb.load()
                                                     wb.new("A") wb.type("DASHBOARDOLD\n"))",
                                                  "test.lua");
        ASSERT_TRUE(result.passed) << result.complaint;
        work(workbench, *workbench.toolkit().frame().bars().front());
    }
    /// Where the dashboard stands after a new start.
    BarPlace placeAfterStart() {
        BarPlace place;
        run([&place](Workbench& workbench, CQrUiPaletteSet& bar) {
            place = workbench.toolkit().frame().placeOf(bar);
        });
        return place;
    }

    support::TemporaryFolder m_folder;
};

TEST_F(BarMemoryTest, TheDashboardComesBackWhereItStoodWhenTheProfileWasSaved) {
    run([](Workbench& workbench, CQrUiPaletteSet& bar) {
        workbench.toolkit().frame().dock(bar, Edge::Left);
        workbench.profiles().save();
        workbench.toolkit().frame().dock(bar, Edge::Right);
    });
    EXPECT_EQ(placeAfterStart().edge, Edge::Left);
}

TEST_F(BarMemoryTest, AFloatingDashboardComesBackInItsSize) {
    BarPlace before;
    run([&before](Workbench& workbench, CQrUiPaletteSet& bar) {
        workbench.toolkit().frame().floatAt(bar, {30, 40, 330, 540});
        before = workbench.toolkit().frame().placeOf(bar);
        workbench.profiles().save();
    });
    const BarPlace after = placeAfterStart();
    EXPECT_TRUE(after.floating);
    EXPECT_EQ(after.rect.left, before.rect.left);
    EXPECT_EQ(after.rect.Width(), before.rect.Width());
}

TEST_F(BarMemoryTest, AnotherProfileHasItsOwnPlace) {
    run([](Workbench& workbench, CQrUiPaletteSet& bar) {
        MainFrame& frame = workbench.toolkit().frame();
        frame.dock(bar, Edge::Left);
        workbench.profiles().save();
        workbench.profiles().switchTo("Other");
        frame.dock(bar, Edge::Right);
        workbench.profiles().save();
        workbench.profiles().switchTo("Default");
        EXPECT_EQ(frame.placeOf(bar).edge, Edge::Left);
    });
}

TEST_F(BarMemoryTest, APlaceThatMakesNoSenseIsNoneAndWhatElseIsKeptStays) {
    run([](Workbench& workbench, CQrUiPaletteSet&) { workbench.profiles().save(); });
    std::string profile = m_folder.read("Default.xml");
    const std::string right = "Stand=\"docked\"";
    ASSERT_NE(profile.find(right), std::string::npos);
    profile.replace(profile.find(right), right.size(), "Strand=\"docked\" Kept=\"1\"");
    m_folder.write("Default.xml", profile);
    std::vector<std::string> complaints;
    run([&complaints](Workbench& workbench, CQrUiPaletteSet& bar) {
        EXPECT_EQ(workbench.toolkit().frame().placeOf(bar).edge, Edge::Right);
        complaints = workbench.profiles().complaints();
    });
    ASSERT_EQ(complaints.size(), 1U);
    EXPECT_NE(complaints[0].find("Default.xml/Storage/PaletteSets/Set-"), std::string::npos)
        << complaints[0];
    EXPECT_NE(m_folder.read("Default.xml").find("Kept=\"1\""), std::string::npos);
}

}  // namespace
}  // namespace workbench
