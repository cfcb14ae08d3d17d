#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

TEST_F(EditorTest, SessionVariablesTellOfCommandsDrawingAndProfile) {
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
    EXPECT_EQ(read(L"CMDNAMES"), Value(""));
    EXPECT_EQ(read(L"DWGNAME"), Value(""));
    EXPECT_EQ(read(L"CPROFILE"), Value("Default"));
    newDocument(L"House");
    EXPECT_EQ(read(L"DWGNAME"), Value("House"));
    editor().beginCommand(L"LINE");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(1));
    EXPECT_EQ(read(L"CMDNAMES"), Value("LINE"));
    editor().beginCommand(L"'ZOOM");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(3));
}

TEST_F(EditorTest, NobodyWritesWhatIsComputed) {
    newDocument();
    for (const wchar_t* name : {L"CMDACTIVE", L"CMDNAMES", L"DWGNAME", L"CPROFILE"})
        EXPECT_FALSE(editor().set(name, "1")) << toUtf8(name);
}

TEST_F(EditorTest, CleanScreenAndDashboardStateStartAtZero) {
    EXPECT_EQ(read(L"CLEANSCREENSTATE"), Value(0));
    EXPECT_EQ(read(L"DASHBOARDSTATE"), Value(0));
    EXPECT_TRUE(editor().set(L"DASHBOARDSTATE", 1));
    EXPECT_EQ(read(L"DASHBOARDSTATE"), Value(1));
}

TEST_F(EditorTest, UndoStepsCountsWhatCanBeTakenBack) {
    EXPECT_TRUE(read(L"UNDOSTEPS").isNil());
    newDocument();
    EXPECT_EQ(read(L"UNDOSTEPS"), Value(0));
    write(L"LUNITS", 4);
    write(L"LUPREC", 2);
    EXPECT_EQ(read(L"UNDOSTEPS"), Value(2));
    editor().undo();
    EXPECT_EQ(read(L"UNDOSTEPS"), Value(1));
    EXPECT_FALSE(write(L"UNDOSTEPS", 7));
}

}  // namespace workbench
