#include "workbench/adapters/open_entity.h"

#include "tests/workbench/adapters/adapters_fixture.h"

namespace workbench {

class OpenEntityTest : public AdaptersTest {
protected:
    OpenEntityTest() : m_zero(data().find(drawing::RecordKind::Layer, "0")) {
        drawing::Entity line;
        line.layer = m_zero;
        line.points = {{0, 0, 0}, {1, 0, 0}};
        m_line = toHostId(data().add(line).id);
    }

    drawing::ObjectId m_zero;
    VxDbObjectId m_line;
};

TEST_F(OpenEntityTest, TellsItsLayer) {
    VxDbEntity* entity = nullptr;
    ASSERT_EQ(vxdbOpenVxDbEntity(entity, m_line, VxDbOpenMode::kForRead), Zorq::eOk);
    EXPECT_EQ(entity->layerId(), toHostId(m_zero));
    m_bench.faults().fail("VxDbEntity::layerId");
    EXPECT_TRUE(entity->layerId().isNull());
    EXPECT_EQ(entity->close(), Zorq::eOk);
}

TEST_F(OpenEntityTest, WhatIsNoEntityIsRefusedUnopened) {
    VxDbEntity* entity = nullptr;
    EXPECT_EQ(vxdbOpenVxDbEntity(entity, toHostId(m_zero), VxDbOpenMode::kForRead), 3);
    EXPECT_NE(vxdbOpenVxDbEntity(entity, {}, VxDbOpenMode::kForRead), Zorq::eOk);
    m_bench.faults().fail("vxdbOpenVxDbEntity", 19);
    EXPECT_EQ(vxdbOpenVxDbEntity(entity, m_line, VxDbOpenMode::kForRead), 19);
    EXPECT_EQ(entity, nullptr);
    EXPECT_EQ(m_document.openObjects().count(), 0U);
}

}  // namespace workbench
