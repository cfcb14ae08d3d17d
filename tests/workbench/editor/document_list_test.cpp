#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/base/input_error.h"
#include "workbench/base/turn.h"

#include <stdexcept>

namespace workbench {

class DocumentListTest : public EditorTest {
protected:
    DocumentListTest() { documents().addReactor(&log()); }
    ~DocumentListTest() override { documents().removeReactor(&log()); }
    DocumentList& documents() { return editor().documents(); }
};

TEST_F(DocumentListTest, ANewDocumentIsToldThenActivatedThenCurrent) {
    newDocument(L"A");
    EXPECT_EQ(events(), (Lines{"created A", "to be activated A", "became current A"}));
}

TEST_F(DocumentListTest, TheCountIncludesTheNewDocumentAndTheOneThatWent) {
    std::vector<int> counts;
    const auto count = [&] { counts.push_back(documents().documentCount()); };
    log().on("created A", count);
    log().on("to be destroyed A", count);
    log().on("destroyed A", count);
    documents().close(newDocument(L"A"));
    EXPECT_EQ(counts, (std::vector<int>{1, 1, 1}));
    EXPECT_EQ(documents().documentCount(), 0);
}

TEST_F(DocumentListTest, ClosingTheLastLeavesNoCurrentDocument) {
    Document& document = newDocument(L"A");
    events();
    log().on("destroyed A", [&] { EXPECT_EQ(documents().curDocument(), nullptr); });
    documents().close(document);
    EXPECT_EQ(events(), (Lines{"to be destroyed A", "destroyed A"}));
    EXPECT_EQ(documents().curDocument(), nullptr);
    EXPECT_EQ(documents().mdiActiveDocument(), nullptr);
}

TEST_F(DocumentListTest, ClosingTheActiveOneBringsAnotherToTheFront) {
    newDocument(L"A");
    Document& second = newDocument(L"B");
    events();
    documents().close(second);
    EXPECT_EQ(events(),
              (Lines{"to be destroyed B", "destroyed B", "to be activated A", "became current A"}));
}

TEST_F(DocumentListTest, ClosingAnotherOneLeavesTheActiveOne) {
    Document& first = newDocument(L"A");
    Document& second = newDocument(L"B");
    events();
    documents().close(first);
    EXPECT_EQ(events(), (Lines{"to be destroyed A", "destroyed A"}));
    EXPECT_EQ(documents().current(), &second);
}

TEST_F(DocumentListTest, ActivatingTheActiveOneTellsNothing) {
    Document& document = newDocument(L"A");
    events();
    documents().activate(document);
    EXPECT_EQ(events(), Lines{});
}

TEST_F(DocumentListTest, AScopeMakesAnotherDocumentCurrentWhileTheActiveOneStays) {
    Document& first = newDocument(L"A");
    Document& second = newDocument(L"B");
    events();
    {
        const CurrentDocument outer(documents(), first);
        EXPECT_EQ(documents().curDocument(), &first);
        EXPECT_EQ(documents().mdiActiveDocument(), &second);
        { const CurrentDocument inner(documents(), first); }
        EXPECT_EQ(documents().current(), &first);
    }
    EXPECT_EQ(documents().current(), &second);
    EXPECT_EQ(events(), (Lines{"became current A", "became current B"}));
}

TEST_F(DocumentListTest, AScopeSurvivesTheEndOfItsDocument) {
    Document& first = newDocument(L"A");
    Document& second = newDocument(L"B");
    {
        const CurrentDocument outer(documents(), first);
        const CurrentDocument inner(documents(), second);
        documents().close(first);
    }
    EXPECT_EQ(documents().current(), &second);
}

TEST_F(DocumentListTest, ClosingDuringACommandCancelsItWithoutARest) {
    Document& document = newDocument(L"A");
    document.input().addReactor(&log());
    editor().beginCommand(L"LINE");
    document.processor().sendLine(L"_circle\n", false, true, true);
    events();
    documents().close(document);
    EXPECT_EQ(events(),
              (Lines{"to be destroyed A", "input ends", "cancelled LINE", "destroyed A"}));
}

TEST_F(DocumentListTest, ANameThatIsOpenIsRefused) {
    newDocument(L"A");
    EXPECT_THROW(newDocument(L"a"), std::invalid_argument);
    EXPECT_EQ(documents().count(), 1);
}

TEST_F(DocumentListTest, AFileIsOpenedOnceAndNamedAfterItself) {
    const std::filesystem::path house =
        std::filesystem::path(PROJECT_SOURCE_ROOT) / "examples" / "house.json";
    Document& opened = documents().open(house);
    EXPECT_EQ(opened.name(), L"house.json");
    newDocument(L"B");
    EXPECT_EQ(&documents().open(house), &opened);
    EXPECT_EQ(documents().active(), &opened);
    EXPECT_EQ(documents().count(), 2);
}

TEST_F(DocumentListTest, AMissingFileOpensNothing) {
    EXPECT_THROW(documents().open("no such file.json"), InputError);
    EXPECT_EQ(documents().count(), 0);
    EXPECT_EQ(events(), Lines{});
}

TEST_F(DocumentListTest, DocumentsAreFoundByNameSerialPointerAndDatabase) {
    Document& document = newDocument(L"A");
    EXPECT_EQ(documents().find(L"a"), &document);
    EXPECT_EQ(documents().findBySerial(document.data().serial()), &document);
    EXPECT_EQ(documents().find(static_cast<VxApDocument*>(&document)), &document);
    EXPECT_EQ(documents().find(document.database()), &document);
    EXPECT_EQ(documents().find(L"B"), nullptr);
    EXPECT_EQ(documents().all(), std::vector<Document*>{&document});
}

TEST_F(DocumentListTest, AReactorMayCloseTheDocumentThatWasJustCreated) {
    log().on("created A", [&] { documents().close(*documents().find(L"A")); });
    newDocument(L"A");
    EXPECT_EQ(events(), (Lines{"created A", "to be destroyed A", "destroyed A"}));
    EXPECT_EQ(documents().count(), 0);
    EXPECT_EQ(documents().active(), nullptr);
}

TEST_F(DocumentListTest, AReactorMayCloseTheDocumentThatIsToBeActivated) {
    newDocument(L"A");
    log().on("to be activated B", [&] { documents().close(*documents().find(L"B")); });
    events();
    newDocument(L"B");
    EXPECT_EQ(events(),
              (Lines{"created B", "to be activated B", "to be destroyed B", "destroyed B"}));
    EXPECT_EQ(documents().active(), documents().find(L"A"));
}

TEST_F(DocumentListTest, ADocumentOnItsWayOutIsNeitherClosedNorActivatedOnceMore) {
    Document& first = newDocument(L"A");
    newDocument(L"B");
    log().on("to be destroyed A", [&] {
        documents().close(first);
        documents().activate(first);
    });
    events();
    documents().close(first);
    EXPECT_EQ(events(), (Lines{"to be destroyed A", "destroyed A"}));
    EXPECT_EQ(documents().count(), 1);
}

TEST_F(DocumentListTest, AClosedDocumentStaysInMemoryUntilTheTurnIsOver) {
    const Turn turn;
    Document& document = newDocument(L"A");
    documents().close(document);
    EXPECT_EQ(document.name(), L"A");
    EXPECT_EQ(documents().find(L"A"), nullptr);
    EXPECT_EQ(documents().find(static_cast<VxApDocument*>(&document)), nullptr);
}

TEST_F(DocumentListTest, ADrawingSaysGoodbyeWhenItIsClosedThoughItStaysInMemory) {
    struct Watcher : drawing::DatabaseReactor {
        void databaseGoodbye(const drawing::Database& /*database*/) override { ++goodbyes; }
        int goodbyes = 0;
    } watcher;
    {
        const Turn turn;
        Document& document = newDocument(L"A");
        document.data().addReactor(&watcher);
        documents().close(document);
        EXPECT_EQ(watcher.goodbyes, 1);
    }
    EXPECT_EQ(watcher.goodbyes, 1);
}

TEST_F(DocumentListTest, ALockOfADocumentThatWasClosedMeanwhileEndsHarmlessly) {
    const Turn turn;
    Document& closed = newDocument(L"A");
    Document& other = newDocument(L"B");
    other.locks().lock(DocumentLocks::kWrite, this);
    {
        const VxAxDocLock lock(closed.database(), DocumentLocks::kAutoWrite);
        documents().close(closed);
    }
    EXPECT_NE(documents().unlockDocument(&closed), Zorq::eOk);
    EXPECT_EQ(other.lockMode(), DocumentLocks::kWrite);
}

}  // namespace workbench
