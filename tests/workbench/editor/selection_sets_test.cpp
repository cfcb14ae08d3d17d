#include "workbench/editor/selection_sets.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

class SelectionSetsTest : public EditorTest {
protected:
    SelectionSetsTest() : m_document(newDocument()) { run(L"_line\n0,0\n1,0\n2,0\n\n"); }

    SelectionSets& sets() { return editor().selectionSets(); }
    SelectionSets::Entities entities() {
        return m_document.data().ids(drawing::RecordKind::Entity);
    }

    Document& m_document;
};

TEST_F(SelectionSetsTest, ASetKeepsItsEntitiesUntilItIsFreed) {
    const auto set = sets().make(entities());
    ASSERT_TRUE(set);
    ASSERT_NE(sets().find(*set), nullptr);
    EXPECT_EQ(*sets().find(*set), entities());
    EXPECT_TRUE(sets().free(*set));
    EXPECT_EQ(sets().find(*set), nullptr);
    EXPECT_FALSE(sets().free(*set));
}

TEST_F(SelectionSetsTest, ANameIsNeverGivenOutAgain) {
    const auto first = sets().make(entities());
    sets().free(*first);
    const auto second = sets().make(entities());
    EXPECT_NE(*first, *second);
    EXPECT_EQ(sets().find(*first), nullptr);
}

TEST_F(SelectionSetsTest, ThereIsNo129thSet) {
    std::vector<VxEdName> names;
    for (int i = 0; i < 128; ++i)
        names.push_back(sets().make(entities()).value());
    EXPECT_EQ(sets().make(entities()), std::nullopt);
    EXPECT_TRUE(sets().free(names.front()));
    EXPECT_NE(sets().make(entities()), std::nullopt);
    EXPECT_EQ(sets().count(), 128U);
}

TEST_F(SelectionSetsTest, ADrawingTakesItsSetsAlong) {
    const auto set = sets().make(entities());
    editor().documents().close(m_document);
    EXPECT_EQ(sets().find(*set), nullptr);
    EXPECT_FALSE(sets().free(*set));
    EXPECT_EQ(sets().count(), 0U);
}

TEST_F(SelectionSetsTest, NamesOfEntitiesAndOfSetsAreNotEachOthers) {
    const drawing::ObjectId entity = entities().front();
    const VxEdName name = nameOfEntity(entity);
    EXPECT_EQ(entityNamed(name), entity);
    EXPECT_EQ(sets().find(name), nullptr);
    EXPECT_FALSE(sets().free(name));
    EXPECT_TRUE(entityNamed(*sets().make(entities())).isNull());
    EXPECT_TRUE(entityNamed(VxEdName()).isNull());
    EXPECT_EQ(sets().find(VxEdName()), nullptr);
}

}  // namespace workbench
