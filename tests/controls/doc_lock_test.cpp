#include "controls/doc_lock.h"

#include "core/resources.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/base/text.h"
#include "workbench/editor/document_locks.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/statuses.h"

#include <hostapi/zorq.h>

namespace {

class DocLockTest : public PaletteTest {
protected:
    void SetUp() override { load(); }
    void fail(const char* call, int status) { bench().faults().fail(call, status); }
};

TEST_F(DocLockTest, LockHoldsForItsScope) {
    VxApDocument* document = vxDocManagerPtr()->mdiActiveDocument();
    {
        const VxDaDocLock lock;
        EXPECT_EQ(lock.status(), 0);
        EXPECT_NE(document->lockMode() & kDocLockWrite, 0);
    }
    EXPECT_EQ(document->lockMode() & kDocLockWrite, 0);
}

TEST_F(DocLockTest, LockInsideAWriteLockTakesNone) {
    const VxDaDocLock outer;
    forget();
    {
        const VxDaDocLock inner;
        EXPECT_EQ(inner.status(), 0);
    }
    EXPECT_EQ(callCount("VxApDocManager::lockDocument"), 0);
    EXPECT_EQ(callCount("VxApDocManager::unlockDocument"), 0);
    EXPECT_NE(vxDocManagerPtr()->mdiActiveDocument()->lockMode() & kDocLockWrite, 0);
}

class OtherModeTest : public DocLockTest, public testing::WithParamInterface<int> {};

TEST_P(OtherModeTest, DoesNotStandForALockForWriting) {
    workbench::DocumentLocks& locks = bench().editor().documents().current()->locks();
    ASSERT_EQ(locks.lock(GetParam(), &bench().editor().documents()), Zorq::eOk);
    forget();
    {
        const VxDaDocLock lock;
        EXPECT_EQ(lock.status(), 0);
        EXPECT_EQ(locks.mode(), GetParam() | kDocLockWrite);
    }
    EXPECT_EQ(locks.mode(), GetParam());
    EXPECT_EQ(callCount("VxApDocManager::unlockDocument"), 1);
}

INSTANTIATE_TEST_SUITE_P(Modes, OtherModeTest,
                         testing::Values(workbench::DocumentLocks::kAutoWrite,
                                         workbench::DocumentLocks::kProtectedWrite,
                                         workbench::DocumentLocks::kExclusiveWrite,
                                         workbench::DocumentLocks::kRead));

class ForeignLockTest : public DocLockTest, public testing::WithParamInterface<int> {};

TEST_P(ForeignLockTest, RefusesTheLockWhichIsNotGivenBack) {
    workbench::DocumentLocks& locks = bench().editor().documents().current()->locks();
    ASSERT_EQ(locks.lock(GetParam(), this), Zorq::eOk);
    forget();
    {
        const VxDaDocLock lock;
        EXPECT_EQ(lock.status(), workbench::kLockViolation);
        EXPECT_EQ(locks.mode(), GetParam());
    }
    EXPECT_EQ(locks.mode(), GetParam());
    EXPECT_EQ(callCount("VxApDocManager::unlockDocument"), 0);
}

INSTANTIATE_TEST_SUITE_P(Modes, ForeignLockTest,
                         testing::Values(workbench::DocumentLocks::kProtectedWrite,
                                         workbench::DocumentLocks::kExclusiveWrite));

TEST_F(DocLockTest, FailedLockKeepsTheHostsStatusAndUnlocksNothing) {
    fail("VxApDocManager::lockDocument", 15);
    const VxDaDocLock lock;
    EXPECT_EQ(lock.status(), 15);
}

TEST_F(DocLockTest, LockWithoutADocumentHasTheStatusOfNone) {
    workbench::DocumentList& documents = workbench::Workbench::current().editor().documents();
    documents.close(*documents.current());
    const VxDaDocLock lock;
    EXPECT_EQ(lock.status(), 374);
}

TEST_F(DocLockTest, LockIsForWritingUnderTheModulesNamesWithoutAPrompt) {
    forget();
    { const VxDaDocLock lock; }
    const workbench::JournalRecord* made = nullptr;
    for (const workbench::JournalRecord& record : bench().journal().records()) {
        if (record.field("name") == workbench::Value("VxApDocManager::lockDocument"))
            made = &record;
    }
    ASSERT_NE(made, nullptr);
    const auto& args = made->field("args").asList();
    EXPECT_EQ(args.at(1), workbench::Value(kDocLockWrite));
    EXPECT_EQ(args.at(2), workbench::Value("Dashboard Operation"));
    EXPECT_EQ(args.at(3), workbench::Value(workbench::toUtf8(loadDashboardString(220))));
    EXPECT_EQ(args.at(4), workbench::Value(false));
    EXPECT_EQ(callCount("VxApDocManager::unlockDocument"), 1);
}

TEST_F(DocLockTest, LockThatWasNotTakenIsNotGivenBack) {
    fail("VxApDocManager::lockDocument", 15);
    forget();
    { const VxDaDocLock lock; }
    EXPECT_EQ(callCount("VxApDocManager::unlockDocument"), 0);
}

TEST_F(DocLockTest, LockWhoseDocumentsHaveGoneEndsQuietly) {
    {
        const VxDaDocLock lock;
        forget();
        fail("vxDocManagerPtr", 0);
    }
    EXPECT_EQ(callCount("VxApDocManager::unlockDocument"), 0);
}

TEST_F(DocLockTest, LockIsOfTheActiveDocumentAndNotOfTheCurrentOne) {
    workbench::DocumentList& documents = bench().editor().documents();
    workbench::Document& current = *documents.current();
    workbench::Document& active = documents.create(L"Front");
    const workbench::CurrentDocument scope(documents, current);
    const VxDaDocLock lock;
    EXPECT_EQ(active.locks().mode(), kDocLockWrite);
    EXPECT_EQ(current.locks().mode(), 0);
}

TEST_F(DocLockTest, LockWithoutTheHostsDocumentsHasTheStatusOfNone) {
    bench().faults().fail("vxDocManagerPtr");
    const VxDaDocLock lock;
    EXPECT_EQ(lock.status(), 374);
}

}  // namespace
