#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/editor/variables/sky_status.h"

namespace workbench {

TEST_F(EditorTest, TheSunStatusIsTheSunsOwnSwitch) {
    Document& document = newDocument();
    EXPECT_TRUE(write(L"SUNSTATUS", 1));
    EXPECT_EQ(read(L"SUNSTATUS"), Value(1));
    EXPECT_TRUE(document.data().look<drawing::Sun>(activeOrOnlySun(document.data()))->on);
    EXPECT_TRUE(write(L"SUNSTATUS", 0));
    EXPECT_EQ(read(L"SUNSTATUS"), Value(0));
    EXPECT_FALSE(write(L"SUNSTATUS", 2));
}

TEST_F(EditorTest, TheSkyStatusIsThatOfTheViewport) {
    Document& document = newDocument();
    EXPECT_TRUE(write(L"SKYSTATUS", 2));
    EXPECT_EQ(readSkyStatus(document.data()), 2);
    editor().undo();
    EXPECT_EQ(read(L"SKYSTATUS"), Value(0));
}

TEST_F(EditorTest, LightingTogglesAndUnitsKeepToTheirRanges) {
    newDocument();
    for (const wchar_t* name : {L"DEFAULTLIGHTING", L"LIGHTGLYPHDISPLAY"}) {
        EXPECT_EQ(read(name), Value(1)) << toUtf8(name);
        EXPECT_TRUE(write(name, 0)) << toUtf8(name);
        EXPECT_FALSE(write(name, 2)) << toUtf8(name);
    }
    EXPECT_TRUE(write(L"LIGHTINGUNITS", 0));
    EXPECT_FALSE(write(L"LIGHTINGUNITS", 3));
}

}  // namespace workbench
