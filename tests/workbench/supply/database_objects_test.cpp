#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/adapters/host_values.h"
#include "workbench/drawing/records/sun.h"

#include <hostapi/vxdb18/database.h>
#include <hostapi/zorq/documents.h>

namespace workbench {

using DatabaseFunctionsTest = EditorTest;

TEST_F(DatabaseFunctionsTest, AnIdIsValidAsLongAsItsDrawingIsOpenAlsoWhenErased) {
    Document& document = newDocument();
    const drawing::ObjectId sun = document.data().add(drawing::Sun()).id;
    const VxDbObjectId id = toHostId(sun);
    EXPECT_TRUE(id.isValid());
    drawing::Writing<drawing::Sun>(document.data(), sun).erase();
    EXPECT_TRUE(id.isValid());
    EXPECT_FALSE(VxDbObjectId().isValid());
    EXPECT_FALSE(VxDbObjectId{id.number + 1000}.isValid());
    editor().documents().close(document);
    EXPECT_FALSE(id.isValid());
}

TEST_F(DatabaseFunctionsTest, ObjectsAreOpenedForReadByManyAndForWriteByOne) {
    Document& document = newDocument();
    const VxDbObjectId id = toHostId(document.data().add(drawing::Sun()).id);
    VxDbObject* reader = nullptr;
    VxDbObject* other = nullptr;
    EXPECT_EQ(vxdbOpenObject(reader, id, VxDbOpenMode::kForRead), Zorq::eOk);
    EXPECT_EQ(vxdbOpenObject(other, id, VxDbOpenMode::kForRead), Zorq::eOk);
    other->close();
    EXPECT_NE(vxdbOpenObject(other, id, VxDbOpenMode::kForWrite), Zorq::eOk);
    EXPECT_EQ(other, nullptr);
    reader->close();
    const VxAxDocLock lock(document.database(), 1);
    EXPECT_EQ(vxdbOpenObject(other, id, VxDbOpenMode::kForWrite), Zorq::eOk);
    EXPECT_EQ(other->close(), Zorq::eOk);
    EXPECT_EQ(document.openObjects().count(), 0U);
}

TEST_F(DatabaseFunctionsTest, NothingIsOpenedForWriteInsideALockScopeThatWasRefused) {
    Document& document = newDocument();
    const VxDbObjectId id = toHostId(document.data().add(drawing::Sun()).id);
    const VxAxDocLock exclusive(document.database(), DocumentLocks::kExclusiveWrite);
    VxDbObject* object = nullptr;
    {
        const VxAxDocLock refused(document.database(), DocumentLocks::kAutoWrite);
        EXPECT_NE(vxdbOpenObject(object, id, VxDbOpenMode::kForWrite), Zorq::eOk);
        EXPECT_EQ(object, nullptr);
        EXPECT_EQ(vxdbOpenObject(object, id, VxDbOpenMode::kForRead), Zorq::eOk);
        object->close();
    }
    EXPECT_EQ(vxdbOpenObject(object, id, VxDbOpenMode::kForWrite), Zorq::eOk);
    object->close();
}

TEST_F(DatabaseFunctionsTest, WhatCannotBeOpenedIsNull) {
    Document& document = newDocument();
    const drawing::ObjectId sun = document.data().add(drawing::Sun()).id;
    VxDbObject* object = nullptr;
    EXPECT_NE(vxdbOpenObject(object, {}, VxDbOpenMode::kForRead), Zorq::eOk);
    EXPECT_NE(vxdbOpenObject(object, {99}, VxDbOpenMode::kForRead), Zorq::eOk);
    m_bench.faults().fail("vxdbOpenObject", 77, 1);
    EXPECT_EQ(vxdbOpenObject(object, toHostId(sun), VxDbOpenMode::kForRead), 77);
    drawing::Writing<drawing::Sun>(document.data(), sun).erase();
    EXPECT_NE(vxdbOpenObject(object, toHostId(sun), VxDbOpenMode::kForRead), Zorq::eOk);
    EXPECT_EQ(object, nullptr);
}

TEST_F(DatabaseFunctionsTest, WithoutALockAnObjectIsOpenedForReadingOnly) {
    Document& document = newDocument();
    const VxDbObjectId id = toHostId(document.data().add(drawing::Sun()).id);
    VxDbObject* object = nullptr;
    EXPECT_EQ(vxdbOpenObject(object, id, VxDbOpenMode::kForWrite),
              toHostStatus(drawing::Status::NotLocked));
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(vxdbOpenObject(object, id, VxDbOpenMode::kForRead), Zorq::eOk);
    object->close();
    VxDbViewTable* table = nullptr;
    EXPECT_EQ(document.database()->getSymbolTable(table, VxDbOpenMode::kForWrite),
              toHostStatus(drawing::Status::NotLocked));
    EXPECT_EQ(table, nullptr);
}

}  // namespace workbench
