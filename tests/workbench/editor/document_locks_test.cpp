#include "workbench/editor/document_locks.h"

#include "workbench/editor/statuses.h"

#include <gtest/gtest.h>

#include <vector>

namespace workbench {

class DocumentLocksTest : public testing::Test {
protected:
    DocumentLocks m_locks;
    int m_first = 0;  // owners
    int m_second = 0;
};

TEST_F(DocumentLocksTest, WithoutALockTheModeIsZero) {
    EXPECT_EQ(m_locks.mode(), 0);
    EXPECT_FALSE(m_locks.isForWriting());
    EXPECT_FALSE(m_locks.unlock(&m_first));
}

TEST_F(DocumentLocksTest, NestedLocksShowTheirBitsTogether) {
    EXPECT_EQ(m_locks.lock(DocumentLocks::kAutoWrite, &m_first), Zorq::eOk);
    EXPECT_EQ(m_locks.lock(DocumentLocks::kWrite, &m_first), Zorq::eOk);
    EXPECT_EQ(m_locks.mode(), 5);
    EXPECT_TRUE(m_locks.unlock(&m_first));
    EXPECT_EQ(m_locks.mode(), 1);
    EXPECT_TRUE(m_locks.unlock(&m_first));
    EXPECT_EQ(m_locks.mode(), 0);
}

TEST_F(DocumentLocksTest, AnOwnerEndsItsOwnLockThoughAnotherIsYounger) {
    m_locks.lock(DocumentLocks::kWrite, &m_first);
    m_locks.lock(DocumentLocks::kRead, &m_second);
    EXPECT_TRUE(m_locks.unlock(&m_first));
    EXPECT_EQ(m_locks.mode(), DocumentLocks::kRead);
    EXPECT_FALSE(m_locks.unlock(&m_first));
    EXPECT_TRUE(m_locks.unlock(&m_second));
    EXPECT_EQ(m_locks.mode(), 0);
}

TEST_F(DocumentLocksTest, AReadingLockIsNotForWriting) {
    m_locks.lock(DocumentLocks::kRead, &m_first);
    EXPECT_FALSE(m_locks.isForWriting());
    for (const int mode : {DocumentLocks::kAutoWrite, DocumentLocks::kWrite,
                           DocumentLocks::kProtectedWrite, DocumentLocks::kExclusiveWrite}) {
        m_locks.lock(mode, &m_first);
        EXPECT_TRUE(m_locks.isForWriting()) << mode;
        m_locks.unlock(&m_first);
    }
    EXPECT_FALSE(m_locks.isForWriting());
}

TEST_F(DocumentLocksTest, AModeThatLocksNothingOrIsTwoIsRefused) {
    for (const int mode : {0, DocumentLocks::kNotLocked, 5, 64, -1})
        EXPECT_EQ(m_locks.lock(mode, &m_first), kInvalidInput) << mode;
    EXPECT_EQ(m_locks.mode(), 0);
}

/// Two modes, of which one is held by another owner.
struct ModePair {
    int held;
    int asked;
    friend bool operator==(const ModePair&, const ModePair&) = default;
};

constexpr int kAllModes[] = {DocumentLocks::kAutoWrite, DocumentLocks::kWrite,
                             DocumentLocks::kProtectedWrite, DocumentLocks::kExclusiveWrite,
                             DocumentLocks::kRead};

TEST_F(DocumentLocksTest, ExclusiveRefusesAllOthersAndProtectedAllOtherWriters) {
    std::vector<ModePair> refused;
    for (const int held : kAllModes) {
        ASSERT_EQ(m_locks.lock(held, &m_first), Zorq::eOk);
        for (const int asked : kAllModes) {
            const Zorq::ErrorStatus status = m_locks.lock(asked, &m_second);
            if (status == kLockViolation)
                refused.push_back({held, asked});
            EXPECT_EQ(m_locks.mode(), status == Zorq::eOk ? held | asked : held);
            EXPECT_EQ(m_locks.unlock(&m_second), status == Zorq::eOk);
        }
        m_locks.unlock(&m_first);
    }
    EXPECT_EQ(refused, (std::vector<ModePair>{{1, 8},
                                              {1, 16},
                                              {4, 8},
                                              {4, 16},
                                              {8, 1},
                                              {8, 4},
                                              {8, 8},
                                              {8, 16},
                                              {16, 1},
                                              {16, 4},
                                              {16, 8},
                                              {16, 16},
                                              {16, 32},
                                              {32, 16}}));
}

TEST_F(DocumentLocksTest, AnOwnersLocksNeverStandInItsOwnWay) {
    for (const int held : kAllModes) {
        for (const int asked : kAllModes) {
            EXPECT_EQ(m_locks.lock(held, &m_first), Zorq::eOk);
            EXPECT_EQ(m_locks.lock(asked, &m_first), Zorq::eOk) << held << ' ' << asked;
            m_locks.unlock(&m_first);
            m_locks.unlock(&m_first);
        }
    }
}

TEST_F(DocumentLocksTest, OnceTheLockInTheWayHasEndedTheOtherOneIsTaken) {
    m_locks.lock(DocumentLocks::kExclusiveWrite, &m_first);
    ASSERT_EQ(m_locks.lock(DocumentLocks::kRead, &m_second), kLockViolation);
    m_locks.unlock(&m_first);
    EXPECT_EQ(m_locks.lock(DocumentLocks::kRead, &m_second), Zorq::eOk);
}

TEST_F(DocumentLocksTest, NobodyWritesInsideARefusedScope) {
    m_locks.lock(DocumentLocks::kExclusiveWrite, &m_first);
    EXPECT_EQ(m_locks.lockScope(DocumentLocks::kAutoWrite, &m_second), kLockViolation);
    EXPECT_EQ(m_locks.mode(), DocumentLocks::kExclusiveWrite);
    EXPECT_FALSE(m_locks.isForWriting());
    m_locks.lock(DocumentLocks::kWrite, &m_first);
    EXPECT_TRUE(m_locks.isForWriting()) << "the owner has the word again";
    m_locks.unlock(&m_first);
    EXPECT_FALSE(m_locks.isForWriting());
    EXPECT_TRUE(m_locks.unlock(&m_second));
    EXPECT_TRUE(m_locks.isForWriting());
    EXPECT_EQ(m_locks.mode(), DocumentLocks::kExclusiveWrite);
}

TEST_F(DocumentLocksTest, ARefusedScopeStandsInNobodysWay) {
    m_locks.lock(DocumentLocks::kRead, &m_first);
    ASSERT_EQ(m_locks.lockScope(DocumentLocks::kExclusiveWrite, &m_second), kLockViolation);
    EXPECT_EQ(m_locks.lock(DocumentLocks::kWrite, &m_first), Zorq::eOk);
}

TEST_F(DocumentLocksTest, AScopeOfAnInvalidModeIsNone) {
    EXPECT_EQ(m_locks.lockScope(0, &m_first), kInvalidInput);
    EXPECT_FALSE(m_locks.unlock(&m_first));
}

}  // namespace workbench
