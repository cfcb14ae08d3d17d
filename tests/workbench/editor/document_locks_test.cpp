#include "workbench/editor/document_locks.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(DocumentLocksTest, WithoutALockTheModeIsZero) {
    DocumentLocks locks;
    EXPECT_EQ(locks.mode(), 0);
    EXPECT_FALSE(locks.unlock());
}

TEST(DocumentLocksTest, NestedLocksShowTheirBitsTogetherAndEndTheLastFirst) {
    DocumentLocks locks;
    EXPECT_TRUE(locks.lock(DocumentLocks::kAutoWrite));
    EXPECT_TRUE(locks.lock(DocumentLocks::kWrite));
    EXPECT_EQ(locks.mode(), 5);
    EXPECT_TRUE(locks.unlock());
    EXPECT_EQ(locks.mode(), 1);
    EXPECT_TRUE(locks.unlock());
    EXPECT_EQ(locks.mode(), 0);
}

TEST(DocumentLocksTest, AModeThatLocksNothingOrIsTwoIsRefused) {
    DocumentLocks locks;
    for (const int mode : {0, DocumentLocks::kNotLocked, 5, 64, -1})
        EXPECT_FALSE(locks.lock(mode)) << mode;
    EXPECT_EQ(locks.mode(), 0);
}

}  // namespace workbench
