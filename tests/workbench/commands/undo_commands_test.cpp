#include "workbench/commands/undo_commands.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

class UndoCommandsTest : public EditorTest {
protected:
    UndoCommandsTest() {
        newDocument();
        for (const int units : {3, 4, 5})
            write(L"LUNITS", units);
        events();
    }
};

TEST_F(UndoCommandsTest, UTakesOneStepBackAndRedoBringsItAgain) {
    run(L"u\n");
    EXPECT_EQ(read(L"LUNITS"), Value(4));
    run(L"redo\n");
    EXPECT_EQ(read(L"LUNITS"), Value(5));
}

TEST_F(UndoCommandsTest, UndoTakesTheNumberOfStepsAskedFor) {
    run(L"undo\n2\n");
    EXPECT_EQ(read(L"LUNITS"), Value(3));
    run(L"undo\n\n");
    EXPECT_EQ(read(L"LUNITS"), Value(2));
}

TEST_F(UndoCommandsTest, ABadNumberIsAskedForAgain) {
    run(L"undo\nmany\n0\n");
    EXPECT_EQ(read(L"CMDNAMES"), Value("UNDO"));
}

TEST_F(UndoCommandsTest, WithNothingLeftTheyEnd) {
    run(L"undo\n99\n");
    EXPECT_EQ(read(L"LUNITS"), Value(2));
    events();
    EXPECT_TRUE(run(L"u\n"));
    EXPECT_TRUE(run(L"redo\nredo\nredo\nredo\n"));
    EXPECT_EQ(read(L"LUNITS"), Value(5));
}

TEST_F(UndoCommandsTest, InTheMiddleOfACommandTheyFail) {
    editor().beginCommand(L"LINE");
    EXPECT_FALSE(run(L"u\n"));
    EXPECT_FALSE(run(L"redo\n"));
    EXPECT_EQ(read(L"LUNITS"), Value(5));
}

}  // namespace workbench
