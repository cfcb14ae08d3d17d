#include "workbench/adapters/open_layer.h"

#include "tests/workbench/adapters/adapters_fixture.h"

namespace workbench {

class OpenLayerTest : public AdaptersTest {
protected:
    OpenLayerTest() : m_walls(addLayer("Walls")), m_before(walls()) {}

    drawing::ObjectId addLayer(const char* name) {
        drawing::Layer layer;
        layer.name = name;
        return data().add(layer).id;
    }
    const drawing::Layer& walls() { return *data().look<drawing::Layer>(m_walls); }
    VxDbLayerTableRecord& openWalls() { return *openAs<VxDbLayerTableRecord>(m_walls); }
    void lockForWriting() { m_document.locks().lock(DocumentLocks::kWrite, this); }

    drawing::ObjectId m_walls;
    drawing::Layer m_before;
};

TEST_F(OpenLayerTest, TellsItsNameItsIdAndHowItIs) {
    VxDbLayerTableRecord& layer = openWalls();
    VxString name;
    EXPECT_EQ(layer.getName(name), Zorq::eOk);
    EXPECT_EQ(name, L"Walls");
    EXPECT_EQ(layer.objectId(), toHostId(m_walls));
    EXPECT_FALSE(layer.isOff());
    EXPECT_FALSE(layer.isFrozen());
    EXPECT_FALSE(layer.isLocked());
    layer.close();
}

TEST_F(OpenLayerTest, ALayerOfAReferencedDrawingIsDependent) {
    auto* own = openAs<VxDbLayerTableRecord>(m_walls);
    auto* referenced = openAs<VxDbLayerTableRecord>(addLayer("Site|Trees"));
    EXPECT_FALSE(own->isDependent());
    EXPECT_TRUE(referenced->isDependent());
    m_bench.faults().fail("VxDbSymbolTableRecord::isDependent");
    EXPECT_FALSE(referenced->isDependent());
    own->close();
    referenced->close();
}

TEST_F(OpenLayerTest, IsChangedWhileItIsOpenForWritingOnly) {
    VxDbLayerTableRecord& layer = openWalls();
    layer.setIsOff(true);
    layer.setIsLocked(true);
    EXPECT_NE(layer.setIsFrozen(true), Zorq::eOk);
    EXPECT_EQ(walls(), m_before);
    EXPECT_EQ(layer.upgradeOpen(), toHostStatus(drawing::Status::NotLocked));
    lockForWriting();
    EXPECT_EQ(layer.upgradeOpen(), Zorq::eOk);
    EXPECT_EQ(layer.upgradeOpen(), Zorq::eOk);
    layer.setIsOff(true);
    layer.setIsLocked(true);
    EXPECT_EQ(layer.setIsFrozen(true), Zorq::eOk);
    layer.close();
    EXPECT_FALSE(walls().on);
    EXPECT_TRUE(walls().locked);
    EXPECT_TRUE(walls().frozen);
    editor().undo();
    EXPECT_EQ(walls(), m_before);
}

TEST_F(OpenLayerTest, AnotherReaderIsInTheWayOfWriting) {
    lockForWriting();
    VxDbLayerTableRecord& layer = openWalls();
    VxDbLayerTableRecord& other = openWalls();
    EXPECT_EQ(layer.upgradeOpen(), 5);
    other.close();
    m_bench.faults().fail("VxDbObject::upgradeOpen", 77, 1);
    EXPECT_EQ(layer.upgradeOpen(), 77);
    EXPECT_EQ(layer.upgradeOpen(), Zorq::eOk);
    layer.close();
}

TEST_F(OpenLayerTest, TheCurrentLayerIsNotFrozen) {
    lockForWriting();
    write(L"CLAYER", "Walls");
    VxDbLayerTableRecord& layer = openWalls();
    layer.upgradeOpen();
    EXPECT_EQ(layer.setIsFrozen(true), 22);
    EXPECT_EQ(layer.setIsFrozen(false), Zorq::eOk);
    layer.close();
    EXPECT_FALSE(walls().frozen);
}

}  // namespace workbench
