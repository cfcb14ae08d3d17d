#include "tests/support/bench.h"

#include <hostapi/vxdb18.h>

namespace {

class EntryPointTest : public support::Bench {};

TEST_F(EntryPointTest, EveryMessageAnswersZeroAndUnknownOnesDoNothing) {
    ASSERT_TRUE(load());
    const auto entryPoint = exported<VxRxEntryPointFn>("vxrxEntryPoint");
    ASSERT_NE(entryPoint, nullptr);
    takeCalls();
    for (const int message : {0, 3, 4, 100, -1})
        EXPECT_EQ(entryPoint(message, nullptr), 0);
    EXPECT_TRUE(takeCalls().empty());
}

TEST_F(EntryPointTest, HandshakeGivesTheVersionOfTheInterface) {
    ASSERT_TRUE(load());
    EXPECT_EQ(exported<VxRxGetApiVersionFn>("vxrxGetApiVersion")(), kVxRxApiVersion);
}

}  // namespace
