#include "workbench/toolkit/toolkit.h"

#include "tests/support/allocation_counter.h"
#include "tests/support/temporary_folder.h"
#include "tests/workbench/toolkit/toolkit_fixture.h"

#include <filesystem>
#include <fstream>

namespace workbench {
namespace {

using ToolkitUnitTest = ToolkitTest;

TEST_F(ToolkitUnitTest, AnIdleTickTakesNoMemoryWhileNothingIsRecorded) {
    CQrUiPaletteSet quiet(0);
    quiet.Create(L"Quiet", 0, {0, 0, 100, 100}, &frame().frame(), 0);
    m_set.reset();
    journal().setRecording(false);
    const std::size_t before = support::allocationCount();
    toolkit().idleUpdate();
    EXPECT_EQ(support::allocationCount(), before);
}

TEST_F(ToolkitUnitTest, ToolsAreRegisteredByTheirModule) {
    QrUiRegisterTool(L"VxDashboard.qlx", L"DASHBOARDOLD", kTool);
    ASSERT_NE(toolkit().tools().find(kTool), nullptr);
    EXPECT_EQ(toolkit().tools().find(kTool)->command, L"DASHBOARDOLD");
    m_workbench.faults().fail("QrUiRegisterTool");
    QrUiRegisterTool(L"VxDashboard.qlx", L"DASHBOARDOLD", GUID{});
    EXPECT_EQ(toolkit().tools().find(GUID{}), nullptr);
}

TEST_F(ToolkitUnitTest, LargeIconsShowAtTheNextLayout) {
    const CQrUiToolPanelItem& item = addItem(kItemButton, L"ID_A");
    toolkit().setIconSize(32);
    m_panelSet.UpdateLayout();
    CRect rect;
    item.GetRect(rect, kItemClientRect);
    EXPECT_EQ(rect, (CRect{0, 0, 38, 38}));
}

TEST_F(ToolkitUnitTest, APictureFileIsReadOnlyIfItIsAPicture) {
    const support::TemporaryFolder folder;
    folder.write("no_picture.png", "text");
    EXPECT_EQ(LoadBitmapFileGdiPlus((folder.path / "no_picture.png").wstring().c_str()), nullptr);
    EXPECT_EQ(LoadBitmapFileGdiPlus(L"/nowhere/at_all.png"), nullptr);
    EXPECT_EQ(LoadBitmapFileGdiPlus(nullptr), nullptr);
    EXPECT_EQ(toolkit().pictures().liveCount(), 0U);
}

TEST_F(ToolkitUnitTest, APictureOfNoLibraryIsNull) {
    EXPECT_EQ(QrUiLoadImageFromResource(nullptr, L"RCDATA_A", 16, -1), nullptr);
}

TEST_F(ToolkitUnitTest, CreationStepsCanBeToldToFail) {
    class Control final : public CQrUiToolPanel {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_CREATE)
                return OnCreate(reinterpret_cast<const CREATESTRUCT*>(lParam));
            return CQrUiToolPanel::WindowProc(message, wParam, lParam);
        }
    };
    Control control;
    m_workbench.faults().fail("CQrUiToolPanel::OnCreate", {}, 1);
    EXPECT_EQ(control.Create(WS_CHILD, {0, 0, 9, 9}, m_toolPanel, 1, 0), 0);
    EXPECT_NE(control.Create(WS_CHILD, {0, 0, 9, 9}, m_toolPanel, 1, 0), 0);
}

}  // namespace
}  // namespace workbench
