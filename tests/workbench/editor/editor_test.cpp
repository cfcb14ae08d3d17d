#include "workbench/editor/editor.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

TEST_F(EditorTest, WithoutADocumentThereIsNothingToTypeInto) {
    EXPECT_FALSE(editor().type(L"LINE\n"));
    EXPECT_FALSE(editor().beginCommand(L"LINE"));
    EXPECT_FALSE(editor().finishCommand(CommandState::Ended));
    EXPECT_FALSE(editor().undo());
    EXPECT_FALSE(editor().redo());
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

TEST_F(EditorTest, PumpRunsWhatWaitsInEachDocument) {
    Document& first = newDocument(L"A");
    Document& second = newDocument(L"B");
    first.processor().sendLine(L"_model\n", false, false, true);
    second.processor().sendLine(L"_model\n", false, false, true);
    editor().pump();
    EXPECT_FALSE(first.processor().hasQueued());
    EXPECT_FALSE(second.processor().hasQueued());
    EXPECT_EQ(events(),
              (Lines{"started MODEL", "will change TILEMODE", "changed TILEMODE", "ended MODEL",
                     "started MODEL", "will change TILEMODE", "changed TILEMODE", "ended MODEL"}));
}

TEST_F(EditorTest, AChangeByAnotherToolIsToldAtTheNextPump) {
    Document& document = newDocument();
    drawing::Writing<drawing::Viewport>(document.data(), drawing::activeViewport(document.data()))
        ->view.perspective = true;
    EXPECT_EQ(events(), Lines{"view changed"});
    editor().pump();
    EXPECT_EQ(events(), Lines{"changed PERSPECTIVE"});
    editor().pump();
    EXPECT_EQ(events(), Lines{});
}

TEST_F(EditorTest, UndoAndRedoRunAsCommands) {
    newDocument();
    write(L"LUNITS", 4);
    events();
    EXPECT_TRUE(editor().undo());
    EXPECT_EQ(read(L"LUNITS"), Value(2));
    EXPECT_EQ(events(), (Lines{"started U", "will change LUNITS", "changed LUNITS", "ended U"}));
    EXPECT_TRUE(editor().redo());
    EXPECT_EQ(read(L"LUNITS"), Value(4));
    EXPECT_EQ(events(),
              (Lines{"started REDO", "will change LUNITS", "changed LUNITS", "ended REDO"}));
}

TEST_F(EditorTest, ACommandIsActiveFromItsBeginToItsFinish) {
    newDocument();
    EXPECT_TRUE(editor().beginCommand(L"line"));
    EXPECT_EQ(read(L"CMDACTIVE"), Value(1));
    EXPECT_EQ(read(L"CMDNAMES"), Value("LINE"));
    EXPECT_TRUE(editor().finishCommand(CommandState::Failed));
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
    EXPECT_EQ(events(), (Lines{"started LINE", "failed LINE"}));
}

TEST_F(EditorTest, SessionEventsReachTheReactors) {
    editor().quitBegin();
    editor().quitAbort();
    editor().viewChanged();
    EXPECT_EQ(events(), (Lines{"quit begins", "quit aborted", "view changed"}));
}

}  // namespace workbench
