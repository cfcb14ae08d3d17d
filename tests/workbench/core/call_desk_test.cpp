#include "workbench/core/call_desk.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace workbench {

TEST(CallDeskTest, WithoutADeskNobodyTakesCalls) {
    EXPECT_THROW(CallDesk::current(), std::logic_error);
}

TEST(CallDeskTest, TheLastOneServesAndTheOneBeforeDoesAfterItsEnd) {
    const Clock clock;
    Journal journal(clock);
    Faults faults;
    {
        const CallDesk outer(journal, faults);
        EXPECT_EQ(&CallDesk::current(), &outer);
        {
            const CallDesk inner(journal, faults);
            EXPECT_EQ(&CallDesk::current(), &inner);
        }
        EXPECT_EQ(&CallDesk::current(), &outer);
        EXPECT_EQ(&CallDesk::current().journal(), &journal);
        EXPECT_EQ(&CallDesk::current().faults(), &faults);
    }
    EXPECT_THROW(CallDesk::current(), std::logic_error);
}

}  // namespace workbench
