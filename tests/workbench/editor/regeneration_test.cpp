#include "workbench/editor/regeneration.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

class RegenerationTest : public EditorTest {
protected:
    RegenerationTest() : m_document(newDocument()) {}

    Regeneration& regeneration() { return m_document.regeneration(); }
    Document& m_document;
};

TEST_F(RegenerationTest, StandsDueUntilItIsDone) {
    write(L"REGENMODE", 0);
    regeneration().afterLayers(editor(), m_document, {"0"});
    EXPECT_TRUE(regeneration().isDue());
    EXPECT_EQ(fields("regen", "event"), Lines{"due"});
    regeneration().run(editor(), m_document);
    EXPECT_FALSE(regeneration().isDue());
    EXPECT_EQ(fields("regen", "event"), Lines{"done"});
}

TEST_F(RegenerationTest, IsDoneAtOnceOtherwise) {
    regeneration().afterLayers(editor(), m_document, {"0"});
    EXPECT_FALSE(regeneration().isDue());
    EXPECT_EQ(fields("regen", "document"), Lines{"A"});
}

}  // namespace workbench
