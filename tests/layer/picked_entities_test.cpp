#include "layer/picked_entities.h"

#include "tests/layer/layer_filter_fixture.h"

namespace {

/// Test fixture: a line on each of three layers.
class PickedEntitiesTest : public LayerFilterTest {
protected:
    void SetUp() override {
        LayerFilterTest::SetUp();
        using workbench::Value;
        for (const char* layer : {"Walls", "Doors", "Roof"}) {
            setDb("entities.new",
                  Value::Table{{"type", "line"},
                               {"layer", layer},
                               {"points", Value::List{Value::List{0.0, 0.0, 0.0},
                                                      Value::List{1.0, 0.0, 0.0}}}});
        }
        takeJournal();
    }
    /// The user picks the lines of these places, from 1 on.
    void pick(const std::vector<std::size_t>& places) {
        const workbench::Value entities = db("entities");
        workbench::Value::List picked;
        for (const std::size_t place : places)
            picked.push_back(entities.asList().at(place - 1));
        answer("select", picked);
    }
    Calls steps() {
        Calls names;
        for (const std::string& call : takeCallLines(
                 {"vxedSSGet", "vxedSSLength", "vxedSSName", "vxdbGetObjectId", "vxedSSFree"}))
            names.push_back(call.substr(0, call.find('(')));
        return names;
    }
};

TEST_F(PickedEntitiesTest, AreThoseThatTheUserPicksInTheirOrder) {
    pick({3, 1});
    const auto entities = pickEntities();
    ASSERT_TRUE(entities);
    EXPECT_EQ(entities->size(), 2U);
    EXPECT_EQ(steps(), (Calls{"vxedSSGet", "vxedSSLength", "vxedSSName", "vxdbGetObjectId",
                              "vxedSSName", "vxdbGetObjectId", "vxedSSFree"}));
}

TEST_F(PickedEntitiesTest, CancelledPickIsNone) {
    EXPECT_FALSE(pickEntities());
    EXPECT_EQ(steps(), (Calls{"vxedSSGet", "vxedSSFree"}));
}

TEST_F(PickedEntitiesTest, EntitiesWithoutANameOrAnIdAreLeftOut) {
    pick({1, 2, 3});
    failAt("vxedSSName", 1);
    failAt("vxdbGetObjectId", 1);
    const auto entities = pickEntities();
    ASSERT_TRUE(entities);
    EXPECT_EQ(entities->size(), 1U);
}

TEST_F(PickedEntitiesTest, SetWithoutALengthIsEmpty) {
    pick({1, 2, 3});
    fail("vxedSSLength", {}, 1);
    const auto entities = pickEntities();
    ASSERT_TRUE(entities);
    EXPECT_TRUE(entities->empty());
}

TEST_F(PickedEntitiesTest, UserIsAskedWithoutAnyRestriction) {
    pickEntities();
    EXPECT_EQ(takeCallLines({"vxedSSGet"}), Calls{"vxedSSGet(null, null, null, null)"});
}

}  // namespace
