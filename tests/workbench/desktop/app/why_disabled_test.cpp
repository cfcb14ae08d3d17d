#include "workbench/desktop/app/why_disabled.h"

#include "tests/workbench/desktop/mirror/mirror_fixture.h"
#include "workbench/drawing/path_access.h"
#include "workbench/navigation/navigation_tool.h"

namespace workbench::desktop {

class WhyDisabledTest : public MirrorTest {
protected:
    QString why(const char* control, const char* part = "slider") {
        return whyDisabled(m_workbench, window(control, part), nullptr);
    }
    QString whyTool(const wchar_t* id) {
        const CQrUiToolPanelItem* const tool = findItems(windows(), id).at(0);
        return whyDisabled(m_workbench, toolPanelOf(*tool)->m_hWnd, tool);
    }
    bool isDisabled(const wchar_t* id) {
        return (findItems(windows(), id).at(0)->GetState() & kItemDisabled) != 0;
    }
    /// That a tool has a reason when it is disabled, and none otherwise.
    void expectReason(const wchar_t* id, const char* reason) {
        m_stage.toolkit.idleUpdate();
        EXPECT_EQ(whyTool(id), QLatin1String(reason)) << toUtf8(id);
        EXPECT_EQ(isDisabled(id), *reason != '\0') << toUtf8(id);
    }
    static constexpr const char* kLens = "3DNavZoomSliderControl";
};

TEST_F(WhyDisabledTest, TheStateTellsTheReason) {
    editor().set(L"PERSPECTIVE", 1);
    EXPECT_EQ(why(kLens), QString()) << "nothing is wrong";
    editor().set(L"PERSPECTIVE", 0);
    EXPECT_TRUE(why(kLens).startsWith(QLatin1String("The view is parallel")));
    EXPECT_EQ(why(kFade), QString()) << "which has no lens";
    editor().type(L"LINE\n");
    EXPECT_EQ(why(kFade), QStringLiteral("A command runs: LINE"));
    editor().type(L"\x1b");
    editor().set(L"TILEMODE", 0);
    EXPECT_TRUE(why(kFade).startsWith(QLatin1String("The sheet of a layout is current")));
    editor().set(L"CVPORT", 2);
    drawing::setByPath(editor().documents().active()->data(), "viewports.current.locked", true);
    EXPECT_EQ(why(kFade), QStringLiteral("The viewport is locked."));
    editor().documents().close(*editor().documents().active());
    EXPECT_EQ(why(kFade), QStringLiteral("No drawing is open."));
}

TEST_F(WhyDisabledTest, TheAnimationRecorderTellsWhatItWaitsFor) {
    constexpr const wchar_t* kButtons[] = {L"ID_Animation_Record", L"ID_Animation_Pause",
                                           L"ID_Animation_Play", L"ID_Animation_Save"};
    for (const wchar_t* id : kButtons)
        expectReason(id,
                     "No navigation tool runs: an animation is recorded while one, such as Walk, "
                     "does.");
    editor().type(L"3DWALK\n");
    expectReason(kButtons[0], "");
    expectReason(kButtons[1], "Nothing has been recorded yet.");
    expectReason(kButtons[2], "Nothing has been recorded yet.");
    expectReason(kButtons[3], "Nothing has been recorded yet.");
    m_workbench.navigation().recordAnimation();
    expectReason(kButtons[0], "The animation is being recorded.");
    expectReason(kButtons[1], "");
    expectReason(kButtons[2], "");
    expectReason(kButtons[3], "");
    m_workbench.navigation().pauseRecording();
    expectReason(kButtons[0], "");
    expectReason(kButtons[1], "The recording is paused.");
    expectReason(kButtons[2], "");
    expectReason(kButtons[3], "");
}

}  // namespace workbench::desktop
