#include "tests/workbench/script/script_fixture.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/script/calls.h"
#include "workbench/windows/window_system.h"

#include <cstddef>
#include <string>
#include <vector>

namespace workbench::script {

namespace {

class SessionCallsTest : public ScriptTest {};

TEST_F(SessionCallsTest, HiddenLibraryIsMissingUntilUnhidden) {
    run("wb.hide('VxDashboard.qlx') assert(not pcall(wb.load)) "
        "wb.unhide('VxDashboard.qlx') assert(wb.load())");
}

TEST_F(SessionCallsTest, HiddenSymbolIsMissing) {
    run("wb.hide('VxDashboard.qlx', 'VxDaNotifyDashboard') wb.load() "
        "local done, reason = pcall(wb.notify, 3) "
        "assert(reason:find('the module exports no VxDaNotifyDashboard', 1, true)) "
        "wb.unhide('VxDashboard.qlx', 'VxDaNotifyDashboard') assert(wb.notify(3) == 1)");
}

TEST_F(SessionCallsTest, FaultComesAsOftenAsAsked) {
    runOnDashboard(R"(
        local fade = wb.control("LayerLockTransparencySliderControl")
        wb.fail("vxedSetVar", -5001, 1)
        fade:enter("20")
        assert(wb.var("LAYLOCKFADECTL") == 50)
        assert(wb.journal("call")[1] ~= nil)
        fade:enter("30")
        assert(wb.var("LAYLOCKFADECTL") == 30)
    )");
}

TEST_F(SessionCallsTest, FaultComesAfterTheCallsThatAreToGoWell) {
    runOnDashboard(R"(
        local fade = wb.control("LayerLockTransparencySliderControl")
        wb.fail("vxedSetVar", -5001, 1, 1)
        fade:enter("20")
        assert(wb.var("LAYLOCKFADECTL") == 20)
        fade:enter("30")
        assert(wb.var("LAYLOCKFADECTL") == 20)
        fade:enter("40")
        assert(wb.var("LAYLOCKFADECTL") == 40)
    )");
    EXPECT_EQ(complaintOf("wb.fail('vxedSetVar', nil, 1, -1)"),
              "wb.fail: the number of calls that go well can't be negative");
}

TEST_F(SessionCallsTest, TheRegistryKeepsTextsAndNumbersInTheProfile) {
    run(R"(
        local path = "Dialogs/VxLayerApps:LayerStatesManager/LayerNotFound"
        assert(wb.registry(path) == nil)
        wb.registry(path, 0)
        assert(wb.registry([[dialogs\vxlayerapps:layerstatesmanager\LAYERNOTFOUND]]) == 0)
        wb.registry("Dialogs/Greeting", "Grüße")
        wb.save_profile()
        wb.profile("Other")
        assert(wb.registry(path) == nil)
        wb.profile("Default")
        assert(wb.registry("Dialogs/Greeting") == "Grüße")
        wb.registry(path, nil)
        assert(wb.registry(path) == nil)
    )");
}

TEST_F(SessionCallsTest, WhatTheRegistryCannotHoldIsAnError) {
    EXPECT_EQ(
        complaintOf("wb.registry('Dialogs//X')"),
        R"(wb.registry: "Dialogs//X" is no path of the registry: names with / or \ between them)");
    EXPECT_EQ(complaintOf("wb.registry('X', -1)"),
              "wb.registry: the registry can't hold -1: a text, or a whole number from 0 to "
              "4294967295");
    EXPECT_EQ(complaintOf("wb.registry('X', true)"),
              "wb.registry: the registry can't hold true: a text, or a whole number from 0 to "
              "4294967295");
}

TEST_F(SessionCallsTest, ThemeIsSwitchedAndTheControlsHearOfIt) {
    runOnDashboard(R"(
        wb.journal()
        wb.theme("dark")
        local theme, heard = nil, {}
        for _, record in ipairs(wb.journal()) do
            if record.kind == "control" and record.field == "theme" then theme = record end
            if record.kind == "message" and record.number == 1565 then
                heard[record.control] = true
            end
        end
        assert(theme.old == "light" and theme.new == "dark")
        assert(heard["3DNavPointTriplet1"] and heard["LayerLockTransparencySliderControl"])
        wb.theme("dark")
        for _, record in ipairs(wb.journal()) do
            assert(record.kind ~= "message" and record.kind ~= "control", "it is dark already")
        end
    )");
    EXPECT_EQ(complaintOf("wb.theme('pink')"),
              "wb.theme: there is no theme \"pink\": light or dark");
}

TEST_F(SessionCallsTest, NoWindowKeepsADeadFontWhenTheThemeChanges) {
    runOnDashboard("");
    std::size_t dressed = 0;
    const auto deadFonts = [&] {
        std::vector<std::string> dead;
        dressed = 0;
        WindowSystem& windows = workbench().windows();
        for (const HWND top : windows.topWindows()) {
            for (const HWND handle : windows.descendants(top)) {
                const Window& window = *windows.find(handle);
                dressed += window.font != 0 ? 1U : 0U;
                if (window.font != 0 && windows.gdi().findFont(window.font) == nullptr)
                    dead.push_back(windows.ownerName(handle) + ": " + window.className);
            }
        }
        return dead;
    };
    EXPECT_EQ(deadFonts(), std::vector<std::string>{});
    EXPECT_EQ(dressed, 10U) << "the lists of views and filters, six coordinates and the link";
    run("wb.theme('dark')");
    EXPECT_EQ(deadFonts(), std::vector<std::string>{});
    run("wb.theme('light')");
    EXPECT_EQ(deadFonts(), std::vector<std::string>{});
}

TEST_F(SessionCallsTest, FaultWithoutCountStaysUntilTakenBack) {
    runOnDashboard(R"(
        local fade = wb.control("LayerLockTransparencySliderControl")
        wb.fail("vxedSetVar")
        fade:enter("20") fade:enter("25")
        assert(wb.var("LAYLOCKFADECTL") == 50)
        wb.unfail("vxedSetVar")
        fade:enter("30")
        assert(wb.var("LAYLOCKFADECTL") == 30)
    )");
}

TEST_F(SessionCallsTest, AnswerMustFitAQuestion) {
    EXPECT_EQ(complaintOf("wb.answer('riddle', 'ok')"),
              "wb.answer: there is no question of the kind \"riddle\"");
    run("wb.answer('box', 'no') wb.answer('select', {1, 2})");
    EXPECT_EQ(workbench().answers().take("box"), Value("no"));
    EXPECT_EQ(workbench().answers().take("select"), Value(Value::List{1, 2}));
}

TEST_F(SessionCallsTest, ShiftIsHeldDuringTheClicksToCome) {
    runOnDashboard(R"(
        local views = wb.control("3DNavViewComboCtrl")
        local function stepsBack()
            wb.journal()
            views:click()
            for _, record in ipairs(wb.journal("call")) do
                if record.name:find("^vxInternalZoom") then return record.name end
            end
        end
        wb.db("viewports.current.width", 7)
        wb.db("viewports.current.width", 9)
        views:open()
        views:close()
        wb.hold("shift", true)
        assert(stepsBack() == "vxInternalZoomBack")
        wb.hold("shift", false)
        assert(stepsBack() == "vxInternalZoomPrevious")
        assert(stepsBack() == nil)
    )");
    EXPECT_EQ(complaintOf("wb.hold('hyper', true)"), "wb.hold: there is no key \"hyper\" to hold");
}

TEST_F(SessionCallsTest, ClockMovesOnlyForwardAndOnlyWhenAsked) {
    run("wb.new('A') wb.idle(3)");
    EXPECT_EQ(workbench().clock().now(), 0);
    run("wb.wait(70) wb.wait(0)");
    EXPECT_EQ(workbench().clock().now(), 70);
    EXPECT_EQ(complaintOf("wb.wait(-1)"), "wb.wait: time doesn't run backwards");
}

TEST_F(SessionCallsTest, IdleTicksReachTheDashboard) {
    runOnDashboard(R"(
        wb.begin("MOVE")
        wb.item("ID_DefaultLighting"):click()
        assert(wb.var("CMDNAMES") == "MOVE")
        wb.idle()
        assert(wb.var("CMDNAMES") == "")
    )");
}

TEST_F(SessionCallsTest, ProfileIsSwitchedAndSaved) {
    run("wb.profile('Mine') assert(wb.var('CPROFILE') == 'Mine') wb.save_profile()");
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(workbench().profiles().folder()) /
                                        "Mine.xml"));
}

TEST_F(SessionCallsTest, ProfileNameThatLeavesTheFolderIsRefused) {
    EXPECT_EQ(complaintOf("wb.profile('../x')").find("wb.profile: "), 0U);
}

TEST_F(SessionCallsTest, UnknownWorkspaceIsNamed) {
    EXPECT_EQ(complaintOf("wb.workspace('Nowhere')"),
              "wb.workspace: there is no workspace \"Nowhere\"");
    run("wb.workspace('Drafting')");
}

TEST_F(SessionCallsTest, NothingIsSavedWhileTheApplicationQuits) {
    runOnDashboard(R"(
        local function saves()
            wb.journal()
            wb.save_profile()
            for _, record in ipairs(wb.journal("call")) do
                if record.name == "VxApProfileStorage::createNode" then return true end
            end
            return false
        end
        wb.quit_begin()
        assert(not saves())
        wb.quit_abort()
        assert(saves())
    )");
}

}  // namespace

}  // namespace workbench::script
