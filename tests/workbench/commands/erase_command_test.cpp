#include "workbench/commands/erase_command.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

class EraseCommandTest : public EditorTest {
protected:
    EraseCommandTest() : m_document(newDocument()) { run(L"_line\n0,0\n1,0\n2,0\n3,0\n\n"); }
    std::size_t count() { return m_document.data().ids(drawing::RecordKind::Entity).size(); }

    Document& m_document;
};

TEST_F(EraseCommandTest, ErasesTheLastOneOnce) {
    run(L"_erase\nlast\nl\n\n");
    EXPECT_EQ(count(), 2U);
}

TEST_F(EraseCommandTest, ErasesAllAndUndoBringsThemBack) {
    run(L"_erase\nall\n\n");
    EXPECT_EQ(count(), 0U);
    run(L"_erase\nlast\n\n");
    editor().undo();
    EXPECT_EQ(count(), 3U);
}

TEST_F(EraseCommandTest, NothingGoesBeforeEnterOrAfterACancel) {
    editor().type(L"erase\nall\n");
    EXPECT_EQ(count(), 3U);
    editor().type(L"\33");
    EXPECT_EQ(count(), 3U);
}

TEST_F(EraseCommandTest, WhatWasSelectedBeforeGoesAtOnce) {
    const auto ids = m_document.data().ids(drawing::RecordKind::Entity);
    editor().selection().selectBefore(m_document, {ids[0], ids[2]});
    EXPECT_TRUE(run(L"_erase\n"));
    EXPECT_FALSE(processor().isActive());
    EXPECT_EQ(m_document.data().ids(drawing::RecordKind::Entity),
              std::vector<drawing::ObjectId>{ids[1]});
    run(L"_erase\n");
    EXPECT_TRUE(processor().isActive());
}

}  // namespace workbench
