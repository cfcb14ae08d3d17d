#include "workbench/editor/document_locks.h"

#include <gtest/gtest.h>

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
    EXPECT_TRUE(m_locks.lock(DocumentLocks::kAutoWrite, &m_first));
    EXPECT_TRUE(m_locks.lock(DocumentLocks::kWrite, &m_first));
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
        m_locks.lock(mode, &m_second);
        EXPECT_TRUE(m_locks.isForWriting()) << mode;
        m_locks.unlock(&m_second);
    }
    EXPECT_FALSE(m_locks.isForWriting());
}

TEST_F(DocumentLocksTest, AModeThatLocksNothingOrIsTwoIsRefused) {
    for (const int mode : {0, DocumentLocks::kNotLocked, 5, 64, -1})
        EXPECT_FALSE(m_locks.lock(mode, &m_first)) << mode;
    EXPECT_EQ(m_locks.mode(), 0);
}

}  // namespace workbench
