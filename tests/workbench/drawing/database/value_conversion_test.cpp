#include "workbench/drawing/database/value_conversion.h"

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/layer.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

class ValueConversion : public testing::Test {
protected:
    ValueConversion() {
        Layer layer;
        layer.name = "Walls";
        m_walls = m_db.add(layer).id;
    }

    template <class T>
    T read(const Value& value) {
        T member{};
        fromValue(value, member, m_db);
        return member;
    }

    using LayerRef = Ref<RecordKind::Layer>;

    Database m_db;
    ObjectId m_walls;
};

TEST_F(ValueConversion, NumbersKeepToTheirType) {
    EXPECT_EQ(read<int>(3.0), 3);
    EXPECT_EQ(read<double>(3), 3.0);
    EXPECT_THROW(read<int>(3.5), ValueError);
    EXPECT_THROW(read<int>(std::int64_t{1} << 40), ValueError);
    EXPECT_THROW(read<double>("3"), ValueError);
    EXPECT_THROW(read<double>(1.0e308 * 10.0), ValueError);
}

TEST_F(ValueConversion, PointHasThreeNumbers) {
    EXPECT_EQ(read<Vec3>(Value::List{1, 2.5, 3}), (Vec3{1, 2.5, 3}));
    EXPECT_THROW(read<Vec3>(Value::List{1, 2}), ValueError);
    EXPECT_THROW(read<Vec3>(Value::List{1, 2, "3"}), ValueError);
}

TEST_F(ValueConversion, ReferencesAreToldByName) {
    EXPECT_EQ(read<LayerRef>("WALLS").id, m_walls);
    EXPECT_TRUE(read<LayerRef>(Value()).id.isNull());
    EXPECT_THROW(read<LayerRef>("Roof"), ValueError);
    EXPECT_EQ(toValue(LayerRef(m_walls), m_db), Value("Walls"));
    EXPECT_EQ(toValue(LayerRef(), m_db), Value());
}

TEST_F(ValueConversion, ReferencesToErasedObjectsLeadNowhere) {
    Writing<Layer>(m_db, m_walls).erase();
    EXPECT_THROW(read<LayerRef>("Walls"), ValueError);
    EXPECT_EQ(toValue(std::vector<LayerRef>{m_walls, LayerRef()}, m_db), Value(Value::List{}));
}

}  // namespace
}  // namespace workbench::drawing
