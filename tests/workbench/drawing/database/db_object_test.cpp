#include "workbench/drawing/database/db_object.h"

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/layer.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(DbObject, InNoDatabaseIsFreeToChangeButNotToOpen) {
    Record<Layer> object;
    EXPECT_TRUE(object.isWritable());
    object.edit().locked = true;
    EXPECT_TRUE(object.data().locked);
    EXPECT_EQ(object.close(), Status::NotInDatabase);
    EXPECT_EQ(object.upgradeOpen(), Status::NotInDatabase);
    EXPECT_EQ(object.erase(), Status::NotInDatabase);
    EXPECT_EQ(object.cancel(), Status::NotOpenForWrite);
    EXPECT_FALSE(object.isUndoing());
    EXPECT_TRUE(object.id().isNull());
}

TEST(DbObject, InADatabaseIsChangedOnlyWhileOpenForWrite) {
    Database db;
    Layer layer;
    layer.name = "Walls";
    const ObjectId id = db.add(layer).id;
    DbObject* object = nullptr;
    ASSERT_EQ(db.open(id, OpenMode::Read, ErasedObjects::Refuse, object), Status::Ok);
    EXPECT_TRUE(object->isOpenForRead());
    EXPECT_THROW(object->setProperty("on", false, db), std::logic_error);
    ASSERT_EQ(object->upgradeOpen(), Status::Ok);
    object->setProperty("on", false, db);
    EXPECT_EQ(object->close(), Status::Ok);
    EXPECT_EQ(object->close(), Status::NotOpen);
    EXPECT_EQ(object->cancel(), Status::NotOpenForWrite);
    EXPECT_FALSE(db.look<Layer>(id)->on);
}

TEST(DbObject, ErasingTwiceAndComingBackInOneOpeningIsNoChange) {
    Database db;
    Layer layer;
    layer.name = "Walls";
    const ObjectId id = db.add(layer).id;
    db.undoLog().clear();
    DbObject* object = nullptr;
    db.open(id, OpenMode::Write, ErasedObjects::Refuse, object);
    EXPECT_EQ(object->erase(), Status::Ok);
    EXPECT_EQ(object->erase(false), Status::Ok);
    object->close();
    EXPECT_FALSE(object->isErased());
    EXPECT_FALSE(db.undoLog().canUndo());
}

}  // namespace
}  // namespace workbench::drawing
