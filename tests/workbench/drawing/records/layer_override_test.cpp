#include "workbench/drawing/records/layer_override.h"

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/layer.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

class LayerOverrideTest : public testing::Test {
protected:
    LayerOverrideTest() {
        Layer layer;
        layer.name = "Walls";
        m_walls = m_db.add(layer).id;
    }
    LayerOverride read(const Value& value) {
        LayerOverride override;
        fromValue(value, override, m_db);
        return override;
    }

    Database m_db;
    ObjectId m_walls;
};

TEST_F(LayerOverrideTest, ComesBackAsItWasWritten) {
    const LayerOverride override =
        read(Value::Table{{"layer", "walls"}, {"linetype", "Hidden"}, {"transparency", 30}});
    EXPECT_EQ(override.layer.id, m_walls);
    EXPECT_EQ(override.linetype, "Hidden");
    EXPECT_EQ(override.transparency, 30);
    EXPECT_EQ(override.colour, std::nullopt);
    EXPECT_FALSE(override.isEmpty());
    EXPECT_EQ(read(toValue(override, m_db)), override);
}

TEST_F(LayerOverrideTest, OfALayerThatIsGoneIsNil) {
    const LayerOverride override = read(Value::Table{{"layer", "Walls"}, {"colour", 2}});
    Writing<Layer>(m_db, m_walls).erase();
    EXPECT_TRUE(toValue(override, m_db).isNil());
}

TEST_F(LayerOverrideTest, WrongValuesAreRefused) {
    EXPECT_THROW(read(Value::Table{{"colour", 2}}), ValueError);
    EXPECT_THROW(read(Value::Table{{"layer", "Nobody"}}), ValueError);
    EXPECT_THROW(read(Value::Table{{"layer", "Walls"}, {"transparency", 91}}), ValueError);
    EXPECT_THROW(read(Value::Table{{"layer", "Walls"}, {"locked", true}}), ValueError);
}

}  // namespace
}  // namespace workbench::drawing
