#include "workbench/desktop/panes/help_page.h"

#include "workbench/core/clock.h"

#include <gtest/gtest.h>

#include <QApplication>

namespace workbench::desktop {
namespace {

class HelpPageTest : public testing::Test {
protected:
    bool isOpenAfter(const char* kind, const char* name) {
        m_journal.add(kind, {{"name", name}});
        QApplication::processEvents();
        return m_page.page() != nullptr && m_page.page()->isVisible();
    }

    Clock m_clock;
    Journal m_journal{m_clock};
    QWidget m_owner;
    HelpPage m_page{m_journal, m_owner};
};

TEST_F(HelpPageTest, ItOpensWhenTheHostsHelpIsCalled) {
    EXPECT_FALSE(isOpenAfter("call", "vxedGetVar"));
    EXPECT_TRUE(isOpenAfter("call", "vxedHelp"));
    EXPECT_TRUE(m_page.page()->toPlainText().contains(QLatin1String("dashboard")));
    m_page.page()->close();
    EXPECT_TRUE(isOpenAfter("dialog", "Help"));
}

}  // namespace
}  // namespace workbench::desktop
