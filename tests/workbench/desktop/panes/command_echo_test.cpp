#include "workbench/desktop/panes/command_echo.h"

#include "workbench/core/clock.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace workbench::desktop {
namespace {

class CommandEchoTest : public testing::Test {
protected:
    void send(const char* text) { m_journal.add("command", {{"text", text}, {"way", "menu"}}); }
    void tell(const char* text, const char* event) {
        m_journal.add("command", {{"text", text}, {"event", event}});
    }
    QStringList takeLines() { return std::exchange(m_lines, {}); }

    Clock m_clock;
    Journal m_journal{m_clock};
    QStringList m_lines;
    CommandEcho m_echo{m_journal, [this](const QString& line) { m_lines.append(line); }};
};

TEST_F(CommandEchoTest, WhatIsSentIsSaidInOneLine) {
    send("^C^C_perspective\n1\n");
    send("\x1b\x1b'_-view _top ");
    EXPECT_EQ(takeLines(), (QStringList{QStringLiteral("Command: _perspective 1"),
                                        QStringLiteral("Command: '_-view _top")}));
}

TEST_F(CommandEchoTest, AMereCancelAndWhatIsNoCommandAreNotSaid) {
    send("\x1b\x1b");
    m_journal.add("var", {{"name", "LUPREC"}});
    tell("LINE", "started");
    tell("LINE", "ended");
    EXPECT_EQ(takeLines(), QStringList());
}

TEST_F(CommandEchoTest, WhatWentWrongIsSaidOnce) {
    tell("FOO", "unknown");
    tell("LINE", "refused");
    tell("-VIEW", "started");
    m_journal.add("output", {{"text", "There is no view \"x\"."}});
    tell("-VIEW", "failed");
    tell("PSPACE", "started");
    tell("PSPACE", "failed");
    EXPECT_EQ(takeLines(),
              (QStringList{
                  QStringLiteral("Unknown command \"FOO\": the workbench has none of that name."),
                  QStringLiteral("LINE can't run inside another command."),
                  QStringLiteral("There is no view \"x\"."),
                  QStringLiteral("PSPACE could not be done.")}));
}

}  // namespace
}  // namespace workbench::desktop
