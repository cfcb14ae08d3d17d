#include "workbench/editor/object_adapters.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

class ObjectAdaptersTest : public EditorTest {
protected:
    ObjectAdaptersTest() : m_document(newDocument()) {}

    drawing::Database& data() { return m_document.data(); }
    VxDbObject* open(drawing::ObjectId id) {
        VxDbObject* object = nullptr;
        m_document.openObjects().open(id, drawing::OpenMode::Read, object);
        return object;
    }

    Document& m_document;
};

TEST_F(ObjectAdaptersTest, IdsGoThereAndBack) {
    const drawing::ObjectId id(3, 0xFFFFFFFFU);
    EXPECT_EQ(fromHostId(toHostId(id)), id);
    EXPECT_TRUE(toHostId(drawing::ObjectId()).isNull());
}

TEST_F(ObjectAdaptersTest, EachKindIsAnObjectOfItsClass) {
    drawing::Background sky;
    sky.type = drawing::Background::kSky;
    auto* background = dynamic_cast<VxDbBackground*>(open(data().add(sky).id));
    ASSERT_NE(background, nullptr);
    EXPECT_EQ(background->type(), 11);
    EXPECT_EQ(background->close(), Zorq::eOk);

    drawing::Sun bright;
    bright.sky.illumination = true;
    auto* sun = dynamic_cast<VxDbSun*>(open(data().add(bright).id));
    ASSERT_NE(sun, nullptr);
    EXPECT_TRUE(sun->skyIllumination());
    EXPECT_EQ(sun->close(), Zorq::eOk);

    VxDbObject* layer = open(data().find(drawing::RecordKind::Layer, "0"));
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->close(), Zorq::eOk);
    EXPECT_EQ(m_document.openObjects().count(), 0U);
}

TEST_F(ObjectAdaptersTest, TilesAndLayoutViewportsTellWhatTheyShow) {
    drawing::Viewport port;
    port.number = 7;
    port.background = data().add(drawing::Background()).id;
    port.sun = data().add(drawing::Sun()).id;
    auto* tile = dynamic_cast<VxDbViewportTableRecord*>(open(data().add(port).id));
    ASSERT_NE(tile, nullptr);
    EXPECT_EQ(tile->background(), toHostId(port.background));
    EXPECT_EQ(tile->sunId(), toHostId(port.sun));
    tile->close();

    port.layout = data().first(drawing::RecordKind::Layout);
    auto* inLayout = dynamic_cast<VxDbViewport*>(open(data().add(port).id));
    ASSERT_NE(inLayout, nullptr);
    EXPECT_EQ(inLayout->background(), toHostId(port.background));
    EXPECT_EQ(inLayout->sunId(), toHostId(port.sun));
    inLayout->close();
}

TEST_F(ObjectAdaptersTest, AnOpeningIsCountedUntilItIsClosed) {
    const drawing::ObjectId layer = data().find(drawing::RecordKind::Layer, "0");
    VxDbObject* first = open(layer);
    VxDbObject* second = open(layer);
    EXPECT_EQ(m_document.openObjects().count(), 2U);
    first->close();
    EXPECT_TRUE(data().peek(layer)->isOpenForRead());
    second->close();
    EXPECT_FALSE(data().peek(layer)->isOpenForRead());
    EXPECT_EQ(m_document.openObjects().count(), 0U);
}

TEST_F(ObjectAdaptersTest, WhatWasLeftOpenIsClosedAtTheEnd) {
    const drawing::ObjectId layer = data().find(drawing::RecordKind::Layer, "0");
    {
        OpenObjects objects(data());
        VxDbObject* object = nullptr;
        ASSERT_EQ(objects.open(layer, drawing::OpenMode::Read, object), drawing::Status::ok);
        EXPECT_TRUE(data().peek(layer)->isOpenForRead());
    }
    EXPECT_FALSE(data().peek(layer)->isOpenForRead());
}

TEST_F(ObjectAdaptersTest, AFaultInCloseStillEndsTheOpening) {
    VxDbObject* sun = open(data().add(drawing::Sun()).id);
    m_bench.faults().fail("VxDbObject::close", 9);
    EXPECT_EQ(sun->close(), 9);
    EXPECT_EQ(m_document.openObjects().count(), 0U);
}

TEST_F(ObjectAdaptersTest, TheDatabaseTellsWhetherModelSpaceIsActive) {
    EXPECT_TRUE(m_document.database()->tilemode());
    editor().set(L"TILEMODE", 0);
    EXPECT_FALSE(m_document.database()->tilemode());
}

}  // namespace workbench
