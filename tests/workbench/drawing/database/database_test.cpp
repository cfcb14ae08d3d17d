#include "workbench/drawing/database/database.h"

#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/text_style.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace workbench::drawing {
namespace {

Layer layerNamed(const char* name) {
    Layer layer;
    layer.name = name;
    return layer;
}

/// Writes down what it is told, objects by name.
class Recorder final : public ObjectReactor, public DatabaseReactor {
public:
    void openedForModify(const DbObject& object) override { note("open", object); }
    void modified(const DbObject& object) override { note("modified", object); }
    void erased(const DbObject& object, bool erasing) override {
        note(erasing ? "erased" : "returned", object);
    }
    void goodbye(const DbObject& object) override { note("goodbye", object); }
    void objectAppended(const DbObject& object) override { note("db appended", object); }
    void objectModified(const DbObject& object) override { note("db modified", object); }
    void objectErased(const DbObject& object, bool erasing) override {
        note(erasing ? "db erased" : "db returned", object);
    }
    void databaseGoodbye(const Database& /*database*/) override { m_told.push_back("db goodbye"); }

    std::vector<std::string> take() { return std::exchange(m_told, {}); }

private:
    void note(const std::string& what, const DbObject& object) {
        const std::string name = object.name();
        m_told.push_back(what + " " + (name.empty() ? kindName(object.kind()) : name));
    }

    std::vector<std::string> m_told;
};

class DatabaseTest : public testing::Test {
protected:
    DatabaseTest() { m_walls = m_db.add(layerNamed("Walls")).id; }

    void watch(ObjectId id) {
        DbObject* object = nullptr;
        ASSERT_EQ(m_db.open(id, OpenMode::Read, ErasedObjects::Accept, object), Status::Ok);
        object->addReactor(&m_recorder);
        object->close();
    }

    void erase(ObjectId id) {
        Writing<Layer> layer(m_db, id);
        ASSERT_TRUE(layer);
        EXPECT_EQ(layer.erase(), Status::Ok);
    }

    Status tryOpen(ObjectId id, OpenMode mode, ErasedObjects erased = ErasedObjects::Refuse) {
        DbObject* object = nullptr;
        const Status status = m_db.open(id, mode, erased, object);
        EXPECT_EQ(status == Status::Ok, object != nullptr);
        if (object != nullptr) {
            object->close();
        }
        return status;
    }

    using Told = std::vector<std::string>;

    Recorder m_recorder;
    Database m_db{3};
    ObjectId m_walls;
};

TEST_F(DatabaseTest, IdsTellTheirDatabaseAndAreNotUsedAgain) {
    EXPECT_EQ(m_walls.database(), 3U);
    erase(m_walls);
    const ObjectId again = m_db.add(layerNamed("Walls")).id;
    EXPECT_NE(again, m_walls);
    EXPECT_EQ(m_db.find(RecordKind::Layer, "walls"), again);
}

TEST_F(DatabaseTest, NamesAreUniqueAmongTheLivingOfAKind) {
    EXPECT_EQ(m_db.add(layerNamed("WALLS")).status, Status::DuplicateName);
    TextStyle style;
    style.name = "Walls";
    EXPECT_EQ(m_db.add(style).status, Status::Ok);
    EXPECT_EQ(m_db.ids(RecordKind::Layer).size(), 1U);
}

TEST_F(DatabaseTest, OpeningSaysWhyItFails) {
    EXPECT_EQ(tryOpen(ObjectId(), OpenMode::Read), Status::NullObjectId);
    EXPECT_EQ(tryOpen(ObjectId(4, 1), OpenMode::Read), Status::UnknownId);
    EXPECT_EQ(tryOpen(ObjectId(3, 999), OpenMode::Read), Status::UnknownId);
    EXPECT_EQ(Reading<TextStyle>(m_db, m_walls).status(), Status::WrongKind);
    EXPECT_EQ(Writing<TextStyle>(m_db, m_walls).status(), Status::WrongKind);
    erase(m_walls);
    EXPECT_EQ(tryOpen(m_walls, OpenMode::Write), Status::WasErased);
    EXPECT_EQ(tryOpen(m_walls, OpenMode::Write, ErasedObjects::Accept), Status::Ok);
}

TEST_F(DatabaseTest, ManyReadOrOneWrites) {
    {
        const Reading<Layer> first(m_db, m_walls);
        const Reading<Layer> second(m_db, m_walls);
        EXPECT_TRUE(second);
        EXPECT_EQ(Writing<Layer>(m_db, m_walls).status(), Status::WasOpenForRead);
    }
    const Writing<Layer> writing(m_db, m_walls);
    EXPECT_EQ(Reading<Layer>(m_db, m_walls).status(), Status::WasOpenForWrite);
    EXPECT_EQ(Writing<Layer>(m_db, m_walls).status(), Status::WasOpenForWrite);
}

TEST_F(DatabaseTest, OnlyTheOnlyReaderIsUpgraded) {
    DbObject* object = nullptr;
    m_db.open(m_walls, OpenMode::Read, ErasedObjects::Refuse, object);
    {
        const Reading<Layer> other(m_db, m_walls);
        EXPECT_EQ(object->upgradeOpen(), Status::WasOpenForRead);
    }
    EXPECT_EQ(object->erase(), Status::NotOpenForWrite);
    EXPECT_EQ(object->upgradeOpen(), Status::Ok);
    EXPECT_TRUE(object->isOpenForWrite());
    EXPECT_EQ(object->upgradeOpen(), Status::WasOpenForWrite);
    EXPECT_EQ(object->close(), Status::Ok);
    EXPECT_EQ(object->close(), Status::NotOpen);
    EXPECT_EQ(object->upgradeOpen(), Status::NotOpen);
}

TEST_F(DatabaseTest, RecordOfAClosedObjectCannotBeChanged) {
    DbObject* object = nullptr;
    m_db.open(m_walls, OpenMode::Read, ErasedObjects::Refuse, object);
    EXPECT_THROW(dynamic_cast<Record<Layer>&>(*object).edit(), std::logic_error);
    object->close();
}

TEST_F(DatabaseTest, OpenedForModifyComesBeforeTheChange) {
    class Peeker final : public ObjectReactor {
    public:
        void openedForModify(const DbObject& object) override { seen += state(object); }
        void modified(const DbObject& object) override { seen += state(object); }
        std::string seen;

    private:
        static char state(const DbObject& object) {
            return dynamic_cast<const Record<Layer>&>(object).data().on ? '1' : '0';
        }
    } peeker;
    DbObject* object = nullptr;
    m_db.open(m_walls, OpenMode::Read, ErasedObjects::Refuse, object);
    object->addReactor(&peeker);
    object->upgradeOpen();
    EXPECT_EQ(peeker.seen, "1");
    dynamic_cast<Record<Layer>&>(*object).edit().on = false;
    EXPECT_EQ(peeker.seen, "1");
    object->close();
    EXPECT_EQ(peeker.seen, "10");
    object->removeReactor(&peeker);
}

TEST_F(DatabaseTest, WritingWithoutAChangeTellsOnlyOfTheOpening) {
    watch(m_walls);
    m_db.undoLog().clear();
    { const Writing<Layer> layer(m_db, m_walls); }
    EXPECT_EQ(m_recorder.take(), Told{"open Walls"});
    EXPECT_FALSE(m_db.undoLog().canUndo());
}

TEST_F(DatabaseTest, CancelPutsTheObjectBack) {
    watch(m_walls);
    m_db.undoLog().clear();
    DbObject* object = nullptr;
    m_db.open(m_walls, OpenMode::Write, ErasedObjects::Refuse, object);
    dynamic_cast<Record<Layer>&>(*object).edit().locked = true;
    object->erase();
    EXPECT_EQ(object->cancel(), Status::Ok);
    EXPECT_EQ(m_recorder.take(), Told{"open Walls"});
    EXPECT_FALSE(m_db.look<Layer>(m_walls)->locked);
    EXPECT_FALSE(m_db.peek(m_walls)->isErased());
    EXPECT_FALSE(m_db.undoLog().canUndo());
}

TEST_F(DatabaseTest, ErasureTellsTheObjectThenTheDatabaseThenTheTable) {
    watch(m_walls);
    watch(m_db.table(RecordKind::Layer));
    m_db.addReactor(&m_recorder);
    erase(m_walls);
    EXPECT_EQ(m_recorder.take(), (Told{"open Walls", "erased Walls", "db erased Walls",
                                       "open table", "modified table", "db modified table"}));
    EXPECT_TRUE(m_db.ids(RecordKind::Layer).empty());
}

TEST_F(DatabaseTest, AddingTellsTheTableBeforeAndAfter) {
    watch(m_db.table(RecordKind::Layer));
    m_db.addReactor(&m_recorder);
    m_db.add(layerNamed("Roof"));
    EXPECT_EQ(m_recorder.take(),
              (Told{"open table", "db appended Roof", "modified table", "db modified table"}));
}

TEST_F(DatabaseTest, UndoAndRedoOfAChangeTellLikeTheChangeItself) {
    {
        Writing<Layer> layer(m_db, m_walls);
        layer->locked = true;
    }
    watch(m_walls);
    EXPECT_EQ(m_db.undoLog().undo(), Status::Ok);
    EXPECT_FALSE(m_db.look<Layer>(m_walls)->locked);
    EXPECT_EQ(m_recorder.take(), (Told{"open Walls", "modified Walls"}));
    EXPECT_EQ(m_db.undoLog().redo(), Status::Ok);
    EXPECT_TRUE(m_db.look<Layer>(m_walls)->locked);
    EXPECT_EQ(m_recorder.take(), (Told{"open Walls", "modified Walls"}));
}

TEST_F(DatabaseTest, UndoBringsAnErasedObjectBackUnderItsId) {
    erase(m_walls);
    watch(m_walls);
    m_db.undoLog().undo();
    EXPECT_EQ(m_db.find(RecordKind::Layer, "Walls"), m_walls);
    EXPECT_EQ(m_recorder.take(), (Told{"open Walls", "returned Walls"}));
    m_db.undoLog().redo();
    EXPECT_EQ(tryOpen(m_walls, OpenMode::Read), Status::WasErased);
}

TEST_F(DatabaseTest, UndoOfAnAdditionErasesAndRedoReturnsIt) {
    m_db.undoLog().undo();
    EXPECT_TRUE(m_db.find(RecordKind::Layer, "Walls").isNull());
    m_db.undoLog().redo();
    EXPECT_EQ(m_db.find(RecordKind::Layer, "Walls"), m_walls);
}

TEST_F(DatabaseTest, ChangeAndErasureInOneOpeningAreUndoneTogether) {
    {
        Writing<Layer> layer(m_db, m_walls);
        layer->description = "gone";
        layer.erase();
    }
    m_db.undoLog().undo();
    EXPECT_FALSE(m_db.peek(m_walls)->isErased());
    EXPECT_EQ(m_db.look<Layer>(m_walls)->description, "");
}

TEST_F(DatabaseTest, ObjectKnowsThatItIsBeingUndone) {
    class Asker final : public ObjectReactor {
    public:
        void modified(const DbObject& object) override { undoing.push_back(object.isUndoing()); }
        std::vector<bool> undoing;
    } asker;
    DbObject* object = nullptr;
    m_db.open(m_walls, OpenMode::Write, ErasedObjects::Refuse, object);
    object->addReactor(&asker);
    dynamic_cast<Record<Layer>&>(*object).edit().locked = true;
    object->close();
    m_db.undoLog().undo();
    m_db.undoLog().redo();
    EXPECT_EQ(asker.undoing, (std::vector<bool>{false, true, false}));
    object->removeReactor(&asker);
}

TEST_F(DatabaseTest, ObjectCannotJoinTwice) {
    Added added;
    {
        auto object = std::make_unique<Record<Layer>>(layerNamed("Roof"));
        EXPECT_EQ(object->close(), Status::NotInDatabase);
        EXPECT_EQ(object->upgradeOpen(), Status::NotInDatabase);
        object->edit().locked = true;
        added = m_db.add(std::move(object));
    }
    EXPECT_TRUE(m_db.look<Layer>(added.id)->locked);
}

TEST(DatabaseEnd, SaysGoodbyeToObjectsFirstAndThenToTheDatabase) {
    Recorder recorder;
    {
        Database db;
        const ObjectId id = db.add(layerNamed("Walls")).id;
        DbObject* object = nullptr;
        db.open(id, OpenMode::Read, ErasedObjects::Refuse, object);
        object->addReactor(&recorder);
        object->close();
        db.addReactor(&recorder);
    }
    EXPECT_EQ(recorder.take(), (std::vector<std::string>{"goodbye Walls", "db goodbye"}));
}

}  // namespace
}  // namespace workbench::drawing
