#include "workbench/adapters/open_objects.h"

#include "tests/workbench/adapters/adapters_fixture.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

class OpenObjectsTest : public AdaptersTest {};

TEST_F(OpenObjectsTest, EachKindIsAnObjectOfItsClass) {
    EXPECT_NE(openAs<VxDbBackground>(data().add(drawing::Background()).id), nullptr);
    EXPECT_NE(openAs<VxDbSun>(data().add(drawing::Sun()).id), nullptr);
    EXPECT_NE(openAs<VxDbViewTable>(data().table(drawing::RecordKind::View)), nullptr);
    drawing::View view;
    view.name = "Attic";
    EXPECT_NE(openAs<VxDbViewTableRecord>(data().add(view).id), nullptr);
    drawing::Viewport port;
    port.number = 7;
    EXPECT_NE(openAs<VxDbViewportTableRecord>(data().add(port).id), nullptr);
    port.layout = firstLayout();
    EXPECT_NE(openAs<VxDbViewport>(data().add(port).id), nullptr);
    EXPECT_NE(open(data().find(drawing::RecordKind::Layer, "0")), nullptr);
}

TEST_F(OpenObjectsTest, AnOpeningIsCountedUntilItIsClosed) {
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

TEST_F(OpenObjectsTest, WhatWasLeftOpenIsClosedAtTheEnd) {
    const drawing::ObjectId layer = data().find(drawing::RecordKind::Layer, "0");
    {
        OpenObjects objects(data(), [] { return true; });
        VxDbObject* object = nullptr;
        ASSERT_EQ(objects.open(layer, drawing::OpenMode::Read, object), drawing::Status::Ok);
        EXPECT_TRUE(data().peek(layer)->isOpenForRead());
    }
    EXPECT_FALSE(data().peek(layer)->isOpenForRead());
}

TEST_F(OpenObjectsTest, AFaultInCloseStillEndsTheOpening) {
    VxDbObject* sun = open(data().add(drawing::Sun()).id);
    m_bench.faults().fail("VxDbObject::close", 9);
    EXPECT_EQ(sun->close(), 9);
    EXPECT_EQ(m_document.openObjects().count(), 0U);
}

TEST_F(OpenObjectsTest, NothingIsOpenedForWritingWhileTheDocumentIsNotLockedForIt) {
    const drawing::ObjectId layer = data().find(drawing::RecordKind::Layer, "0");
    bool mayWrite = false;
    OpenObjects objects(data(), [&mayWrite] { return mayWrite; });
    VxDbObject* object = nullptr;
    EXPECT_EQ(objects.open(layer, drawing::OpenMode::Write, object), drawing::Status::NotLocked);
    EXPECT_EQ(object, nullptr);
    EXPECT_FALSE(data().peek(layer)->isOpenForWrite());
    mayWrite = true;
    EXPECT_EQ(objects.open(layer, drawing::OpenMode::Write, object), drawing::Status::Ok);
    EXPECT_EQ(object->close(), Zorq::eOk);
}

}  // namespace workbench
