#include "workbench/toolkit/rest_timer.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

class RestTimerTest : public ToolkitTest {
protected:
    int m_dues = 0;
    RestTimer m_timer{windows(), "Rest", [this] { ++m_dues; }};
};

TEST_F(RestTimerTest, ItIsDueOnce) {
    m_timer.start(100);
    windows().advance(99);
    EXPECT_EQ(m_dues, 0);
    windows().advance(1);
    EXPECT_EQ(m_dues, 1);
    windows().advance(1000);
    EXPECT_EQ(m_dues, 1);
}

TEST_F(RestTimerTest, StartedAgainItWaitsAnewAndStoppedItIsNeverDue) {
    m_timer.start(100);
    windows().advance(60);
    m_timer.start(100);
    windows().advance(60);
    EXPECT_EQ(m_dues, 0);
    m_timer.stop();
    windows().advance(1000);
    EXPECT_EQ(m_dues, 0);
}

}  // namespace
}  // namespace workbench
