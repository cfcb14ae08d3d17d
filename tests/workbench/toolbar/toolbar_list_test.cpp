#include "workbench/toolbar/toolbar_list.h"

#include "tests/workbench/toolbar/toolbar_fixture.h"

namespace workbench {

TEST_F(ToolbarTest, AnUnknownIdIsNoControl) {
    EXPECT_EQ(findToolbarControl(1), nullptr);
    EXPECT_EQ(findToolbarControl(kUndo)->entries, nullptr);
}

TEST_F(ToolbarTest, AnEntryIsFoundWithoutRegardToCase) {
    EXPECT_EQ(indexOfEntry({L"ByLayer", L"Red"}, L"RED"), 1);
    EXPECT_EQ(indexOfEntry({L"ByLayer", L"Red"}, L"Blue"), -1);
    EXPECT_EQ(indexOfEntry({}, L""), -1);
}

TEST_F(ToolbarTest, StylesAndSystemsAreNamesThatAVariableKeeps) {
    for (const unsigned id : {kPlotStyles, kCoordinateSystems, kDimensionStyles}) {
        const ToolbarEntries all = entries(id);
        ASSERT_GE(indexOfEntry(all, current(id)), 0);
        choose(id, all.back());
        EXPECT_EQ(current(id), all.back());
    }
    EXPECT_TRUE(editor().set(L"CDIMSTYLE", "House"));
    EXPECT_EQ(current(kDimensionStyles), L"House");
    EXPECT_TRUE(holds(kDimensionStyles, L"House"));
    editor().undo();
    EXPECT_EQ(current(kDimensionStyles), L"Standard");
}

TEST_F(ToolbarTest, TheUndoButtonUndoes) {
    write(L"LUNITS", 4);
    choose(kUndo, {});
    EXPECT_EQ(read(L"LUNITS"), Value(2));
}

}  // namespace workbench
