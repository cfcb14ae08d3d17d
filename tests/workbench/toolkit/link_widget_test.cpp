#include "workbench/toolkit/link_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/mouse_gestures.h"

namespace workbench {
namespace {

class LinkWidgetTest : public ToolkitTest {
protected:
    LinkWidgetTest() {
        m_link.Create(L"Learn", WS_CHILD | WS_VISIBLE, {0, 0, 50, 20}, &m_panelSet);
        m_link.SetTopic(L"TOPIC");
        journal().take();
    }
    /// The topics that help was asked for.
    std::vector<Value> topics() {
        std::vector<Value> found;
        for (const JournalRecord& record : journal().take("call")) {
            if (record.field("name") == Value("vxedHelp"))
                found.push_back(record.field("args").asList().at(1));
        }
        return found;
    }
    CQrUiQuickStartLink m_link;
};

TEST_F(LinkWidgetTest, AClickOpensTheTopicOnce) {
    gestures::clickAt(toolkit(), m_link.m_hWnd, {5, 5});
    EXPECT_THAT(topics(), testing::ElementsAre(Value("TOPIC")));
    toolkit().mouse().release(m_link.m_hWnd, {5, 5});
    EXPECT_THAT(topics(), testing::IsEmpty());
}

TEST_F(LinkWidgetTest, SizingFollowsTheText) {
    m_link.SizeToContent();
    const int width = m_link.GetClientRect().Width();
    m_link.SetWindowText(L"Learn more");
    m_link.SizeToContent();
    EXPECT_EQ(m_link.GetClientRect().Width(), width + 35);
    EXPECT_EQ(m_link.GetClientRect().Height(), 20);
}

TEST_F(LinkWidgetTest, CreationCanBeToldToFail) {
    CQrUiQuickStartLink other;
    m_workbench.faults().fail("CQrUiQuickStartLink::Create");
    EXPECT_EQ(other.Create(L"x", WS_CHILD, {}, &m_panelSet), 0);
    other.SetTopic(L"none");
    EXPECT_EQ(other.m_hWnd, nullptr);
}

}  // namespace
}  // namespace workbench
