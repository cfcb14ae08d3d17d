#include "workbench/desktop/app/why_disabled.h"

#include "tests/workbench/desktop/mirror/mirror_fixture.h"
#include "workbench/drawing/path_access.h"

namespace workbench::desktop {

class WhyDisabledTest : public MirrorTest {
protected:
    QString why(const char* control, const char* part = "slider") {
        return whyDisabled(m_workbench, window(control, part));
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

}  // namespace workbench::desktop
