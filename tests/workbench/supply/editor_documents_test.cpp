#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/editor/statuses.h"

#include <hostapi/zorq/documents.h>

namespace workbench {

using DocumentFunctionsTest = EditorTest;

TEST_F(DocumentFunctionsTest, TheManagerIsTheEditorsDocuments) {
    EXPECT_EQ(vxDocManagerPtr(), &editor().documents());
    m_bench.faults().fail("vxDocManagerPtr");
    EXPECT_EQ(vxDocManagerPtr(), nullptr);
}

TEST_F(DocumentFunctionsTest, LocksAreTakenAndEnded) {
    Document& document = newDocument();
    VxApDocManager& manager = *vxDocManagerPtr();
    EXPECT_EQ(manager.lockDocument(&document, kDocLockWrite, L"G", L"L", false), Zorq::eOk);
    EXPECT_EQ(document.lockMode(), kDocLockWrite);
    EXPECT_EQ(manager.unlockDocument(&document), Zorq::eOk);
    EXPECT_NE(manager.unlockDocument(&document), Zorq::eOk);
    EXPECT_NE(manager.lockDocument(&document, 0, L"G", L"L", false), Zorq::eOk);
    EXPECT_NE(manager.lockDocument(nullptr, kDocLockWrite, L"G", L"L", false), Zorq::eOk);
    EXPECT_NE(manager.unlockDocument(nullptr), Zorq::eOk);
    m_bench.faults().fail("VxApDocManager::lockDocument", 42);
    EXPECT_EQ(manager.lockDocument(&document, kDocLockWrite, L"G", L"L", false), 42);
}

TEST_F(DocumentFunctionsTest, ALockScopeLocksTheDocumentOfItsDatabase) {
    Document& document = newDocument();
    {
        const VxAxDocLock lock(document.database(), 1);
        EXPECT_EQ(document.locks().mode(), 1);
    }
    EXPECT_EQ(document.locks().mode(), 0);
    {
        const VxAxDocLock nothing(static_cast<VxDbDatabase*>(nullptr), 1);
        m_bench.faults().fail("VxAxDocLock::VxAxDocLock", {}, 1);
        const VxAxDocLock failed(document.database(), 1);
        EXPECT_EQ(document.locks().mode(), 0);
    }
    EXPECT_EQ(document.locks().mode(), 0);
}

TEST_F(DocumentFunctionsTest, AnotherOwnersLockInTheWayIsALockViolation) {
    Document& document = newDocument();
    VxApDocManager& manager = *vxDocManagerPtr();
    {
        const VxAxDocLock exclusive(document.database(), DocumentLocks::kExclusiveWrite);
        EXPECT_EQ(manager.lockDocument(&document, kDocLockWrite, L"G", L"L", false),
                  kLockViolation);
        EXPECT_EQ(manager.unlockDocument(&document), kNoLock);
        EXPECT_EQ(document.locks().mode(), DocumentLocks::kExclusiveWrite);
    }
    EXPECT_EQ(manager.lockDocument(&document, kDocLockWrite, L"G", L"L", false), Zorq::eOk);
    EXPECT_EQ(m_bench.journal().take("box").size(), 0U);
}

TEST_F(DocumentFunctionsTest, AnExclusiveLockIsRefusedWhileACommandRuns) {
    Document& document = newDocument();
    VxApDocManager& manager = *vxDocManagerPtr();
    editor().beginCommand(L"wait");
    EXPECT_EQ(manager.lockDocument(&document, DocumentLocks::kExclusiveWrite, L"G", L"L", false),
              kLockViolation);
    EXPECT_EQ(manager.lockDocument(&document, kDocLockWrite, L"G", L"L", false), Zorq::eOk);
}

TEST_F(DocumentFunctionsTest, TheUserIsToldOfALockViolationOnRequestAndOfNothingElse) {
    Document& document = newDocument();
    VxApDocManager& manager = *vxDocManagerPtr();
    EXPECT_EQ(manager.lockDocument(&document, kDocLockWrite, L"G", L"L", true), Zorq::eOk);
    manager.unlockDocument(&document);
    const VxAxDocLock exclusive(document.database(), DocumentLocks::kExclusiveWrite);
    m_bench.journal().take();
    EXPECT_EQ(manager.lockDocument(&document, kDocLockWrite, L"G", L"Local", true), kLockViolation);
    EXPECT_EQ(fields("box", "text"), Lines{"A is locked: Local can't be done now."});
}

TEST_F(DocumentFunctionsTest, ALockScopeOfADocumentLocksForWritingUnlessAModeIsTold) {
    Document& document = newDocument();
    {
        const VxAxDocLock lock(&document);
        EXPECT_EQ(document.locks().mode(), DocumentLocks::kAutoWrite);
        EXPECT_TRUE(document.locks().isForWriting());
    }
    {
        const VxAxDocLock lock(&document, DocumentLocks::kRead);
        EXPECT_EQ(document.locks().mode(), DocumentLocks::kRead);
    }
    const VxAxDocLock nothing(static_cast<VxApDocument*>(nullptr));
    m_bench.faults().fail("VxAxDocLock::VxAxDocLock", {}, 1);
    const VxAxDocLock failed(&document);
    EXPECT_EQ(document.locks().mode(), 0);
}

TEST_F(DocumentFunctionsTest, SentTextWaitsForTheProcessor) {
    Document& document = newDocument();
    VxApDocManager& manager = *vxDocManagerPtr();
    EXPECT_EQ(manager.sendToCommandLine(&document, L"_lunits\n4\n", false, true, true), Zorq::eOk);
    EXPECT_EQ(read(L"LUNITS"), Value(2));
    editor().pump();
    EXPECT_EQ(read(L"LUNITS"), Value(4));
    EXPECT_NE(manager.sendToCommandLine(nullptr, L"x", false, true, true), Zorq::eOk);
    EXPECT_NE(manager.sendToCommandLine(&document, nullptr, false, true, true), Zorq::eOk);
}

TEST_F(DocumentFunctionsTest, TheFlagOfSentTextHoldsItsThreeTruths) {
    Document& document = newDocument();
    m_bench.journal().take();
    VxApDocManager& manager = *vxDocManagerPtr();
    manager.sendToCommandLine(&document, L"_model", false, true, true);
    manager.sendToCommandLine(&document, L"\3\3", true, false, true);
    const std::vector<JournalRecord> records = m_bench.journal().take("command");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].field("flag"), Value(6));
    EXPECT_EQ(records[0].field("way"), Value("line"));
    EXPECT_EQ(records[1].field("flag"), Value(5));
    EXPECT_EQ(records[1].field("way"), Value("cancel"));
}

TEST_F(DocumentFunctionsTest, FaultsHideDocumentsAndReactors) {
    Document& document = newDocument();
    VxApDocManager& manager = *vxDocManagerPtr();
    for (const char* call : {"VxApDocManager::curDocument", "VxApDocManager::mdiActiveDocument",
                             "VxApDocManager::documentCount", "VxApDocManager::addReactor"})
        m_bench.faults().fail(call);
    EXPECT_EQ(manager.curDocument(), nullptr);
    EXPECT_EQ(manager.mdiActiveDocument(), nullptr);
    EXPECT_EQ(manager.documentCount(), 0);
    EventLog deaf;
    manager.addReactor(&deaf);
    editor().documents().close(document);
    EXPECT_EQ(deaf.take(), Lines{});
}

TEST_F(DocumentFunctionsTest, EachRoadEndsItsOwnLock) {
    Document& document = newDocument();
    VxApDocManager& manager = *vxDocManagerPtr();
    {
        const VxAxDocLock scope(document.database(), DocumentLocks::kAutoWrite);
        EXPECT_EQ(manager.unlockDocument(&document), kNoLock);
        manager.lockDocument(&document, kDocLockWrite, L"G", L"L", false);
    }
    EXPECT_EQ(document.locks().mode(), kDocLockWrite);
    editor().beginCommand(L"wait");
    EXPECT_EQ(manager.unlockDocument(&document), Zorq::eOk);
    EXPECT_EQ(document.locks().mode(), DocumentLocks::kAutoWrite);
    EXPECT_EQ(manager.unlockDocument(&document), kNoLock);
    editor().finishCommand(CommandState::Ended);
    EXPECT_EQ(document.locks().mode(), 0);
}

TEST_F(DocumentFunctionsTest, WhatIsWrittenInALockScopeIsOneStepOfUndo) {
    Document& document = newDocument();
    const std::size_t steps = document.data().undoLog().undoCount();
    {
        const VxAxDocLock lock(&document);
        run(L"_-layer\nnew\nWalls\n\n");
        run(L"_-layer\nnew\nRoof\n\n");
    }
    EXPECT_EQ(document.data().undoLog().undoCount(), steps + 1);
    editor().undo();
    EXPECT_EQ(document.data().ids(drawing::RecordKind::Layer).size(), 1U);
}

}  // namespace workbench
