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

}  // namespace workbench
