#include "workbench/editor/object_adapters.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/drawing/records/view.h"
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

    drawing::ObjectId addView(const char* name) {
        drawing::View view;
        view.name = name;
        return data().add(view).id;
    }
    std::unique_ptr<VxDbViewTableIterator> walk(bool atStart) {
        VxDbViewTable* table = nullptr;
        m_document.database()->getSymbolTable(table, VxDbOpenMode::kForRead);
        VxDbViewTableIterator* iterator = nullptr;
        EXPECT_EQ(table->newIterator(iterator, atStart, true), Zorq::eOk);
        table->close();
        return std::unique_ptr<VxDbViewTableIterator>(iterator);
    }
    /// The names of the views, in the order of a walk.
    std::vector<VxString> viewNames(bool atStart) {
        std::vector<VxString> names;
        for (const auto each = walk(atStart); !each->done(); each->step()) {
            VxDbViewTableRecord* record = nullptr;
            EXPECT_EQ(each->getRecord(record, VxDbOpenMode::kForRead), Zorq::eOk);
            EXPECT_EQ(record->getName(names.emplace_back()), Zorq::eOk);
            record->close();
        }
        return names;
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

TEST_F(ObjectAdaptersTest, OnlyTheViewportOfALayoutTellsWhetherItIsLocked) {
    drawing::Viewport port;
    port.number = 7;
    port.locked = true;
    VxDbObject* tile = open(data().add(port).id);
    EXPECT_EQ(dynamic_cast<VxDbViewport*>(tile), nullptr);
    tile->close();
    port.layout = data().first(drawing::RecordKind::Layout);
    auto* inLayout = dynamic_cast<VxDbViewport*>(open(data().add(port).id));
    EXPECT_TRUE(inLayout->isLocked());
    m_bench.faults().fail("VxDbViewport::isLocked");
    EXPECT_FALSE(inLayout->isLocked());
    inLayout->close();
}

TEST_F(ObjectAdaptersTest, AWalkGoesOverTheLivingViewsFromEitherEnd) {
    EXPECT_TRUE(viewNames(true).empty());
    addView("Attic");
    const drawing::ObjectId cellar = addView("Cellar");
    addView("J\u00e4gerzimmer");
    EXPECT_EQ(viewNames(true), (std::vector<VxString>{L"Attic", L"Cellar", L"J\u00e4gerzimmer"}));
    EXPECT_EQ(viewNames(false), (std::vector<VxString>{L"J\u00e4gerzimmer", L"Cellar", L"Attic"}));
    drawing::Writing<drawing::View>(data(), cellar).erase();
    EXPECT_EQ(viewNames(true).size(), 2U);
    EXPECT_EQ(m_document.openObjects().count(), 0U);
}

TEST_F(ObjectAdaptersTest, AWalkTellsTheIdOfEachViewAndNothingPastTheEnd) {
    const drawing::ObjectId attic = addView("Attic");
    const auto each = walk(true);
    VxDbObjectId id;
    EXPECT_EQ(each->getRecordId(id), Zorq::eOk);
    EXPECT_EQ(id, toHostId(attic));
    each->step();
    VxDbViewTableRecord* record = nullptr;
    EXPECT_NE(each->getRecordId(id), Zorq::eOk);
    EXPECT_NE(each->getRecord(record, VxDbOpenMode::kForRead), Zorq::eOk);
    EXPECT_EQ(record, nullptr);
}

TEST_F(ObjectAdaptersTest, AViewThatIsErasedDuringTheWalkCannotBeOpened) {
    const drawing::ObjectId attic = addView("Attic");
    const auto each = walk(true);
    drawing::Writing<drawing::View>(data(), attic).erase();
    VxDbViewTableRecord* record = nullptr;
    EXPECT_NE(each->getRecord(record, VxDbOpenMode::kForRead), Zorq::eOk);
    EXPECT_EQ(record, nullptr);
}

TEST_F(ObjectAdaptersTest, FaultsGiveNoWalkNoViewAndNoName) {
    const drawing::ObjectId attic = addView("Attic");
    const auto each = walk(true);
    VxDbViewTableRecord* record = nullptr;
    VxDbObjectId id;
    m_bench.faults().fail("VxDbViewTableIterator::getRecord", 11);
    m_bench.faults().fail("VxDbViewTableIterator::getRecordId", 12);
    EXPECT_EQ(each->getRecord(record, VxDbOpenMode::kForRead), 11);
    EXPECT_EQ(each->getRecordId(id), 12);
    auto* view = dynamic_cast<VxDbViewTableRecord*>(open(attic));
    ASSERT_NE(view, nullptr);
    VxString name = L"unread";
    m_bench.faults().fail("VxDbSymbolTableRecord::getName", 13);
    EXPECT_EQ(view->getName(name), 13);
    EXPECT_EQ(name, L"unread");
    view->close();
    auto* table = dynamic_cast<VxDbViewTable*>(open(data().table(drawing::RecordKind::View)));
    ASSERT_NE(table, nullptr);
    VxDbViewTableIterator* iterator = nullptr;
    m_bench.faults().fail("VxDbViewTable::newIterator", 14);
    EXPECT_EQ(table->newIterator(iterator, true, true), 14);
    EXPECT_EQ(iterator, nullptr);
    table->close();
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

}  // namespace workbench
