#include "tests/workbench/windows/window_fixture.h"

namespace workbench {

namespace {

/// A control with its parts, whose changes the journal shows.
class WindowChangesTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(make(control) && make(icon, &control));
        ASSERT_TRUE(make(slider, &control, 1, nullptr, "CQrUiProgSliderCtrl"));
        ASSERT_TRUE(makeEdit(edit, icon, 2) && makeEdit(edit2, control, 3));
        windows().setName(control.m_hWnd, "FadeSlider");
        journal().take();
    }
    /// The changes since the last call, as "name field old new" lines.
    std::vector<std::string> changes() {
        std::vector<std::string> lines;
        for (const JournalRecord& record : journal().take("control"))
            lines.push_back(record.field("name").asString() + " " +
                            record.field("field").asString() + " " +
                            record.field("old").describe() + " " + record.field("new").describe());
        return lines;
    }

    CWnd control;
    CWnd icon;
    CWnd slider;
    CWnd edit;
    CWnd edit2;
};

using Lines = std::vector<std::string>;

}  // namespace

TEST_F(WindowChangesTest, TheControlsOwnChangesBearTheirField) {
    control.EnableWindow(0);
    control.ShowWindow(SW_HIDE);
    control.SetWindowText(L"caption");
    EXPECT_EQ(changes(), (Lines{"FadeSlider enabled true false", "FadeSlider visible true false",
                                "FadeSlider text \"\" \"caption\""}));
}

TEST_F(WindowChangesTest, PartsAreNamedByKindAndNumber) {
    edit.SetWindowText(L"40%");
    edit2.SetWindowText(L"50%");
    slider.EnableWindow(0);
    edit2.ShowWindow(SW_HIDE);
    EXPECT_EQ(changes(), (Lines{"FadeSlider edit \"\" \"40%\"", "FadeSlider edit2 \"\" \"50%\"",
                                "FadeSlider slider.enabled true false",
                                "FadeSlider edit2.visible true false"}));
}

TEST_F(WindowChangesTest, APositionIsTheSlidersValue) {
    windows().changes().note(slider.m_hWnd, "position", 30, 40);
    windows().changes().note(slider.m_hWnd, "position", 40, 40);
    EXPECT_EQ(changes(), Lines{"FadeSlider slider 30 40"});
}

TEST_F(WindowChangesTest, AWindowThatStandsInNoNamedOneIsNotNoted) {
    CWnd alone;
    ASSERT_TRUE(make(alone));
    alone.EnableWindow(0);
    EXPECT_EQ(changes(), Lines{});
}

TEST_F(WindowChangesTest, TheObserverHearsOfChangesAndRepaints) {
    std::vector<HWND> told;
    windows().changes().setObserver([&told](HWND changed) { told.push_back(changed); });
    control.SetWindowText(L"text");
    control.SetWindowText(L"text");
    EXPECT_EQ(told.size(), 1U);
    control.Invalidate();
    EXPECT_EQ(told, (std::vector<HWND>{control.m_hWnd, control.m_hWnd}));
    EXPECT_EQ(control.GetWindowText(), L"text");
    windows().changes().setObserver(nullptr);
}

}  // namespace workbench
