#include "workbench/editor/command.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

namespace {

class AskOnceCommand final : public Command {
public:
    CommandState start(const CommandScope& /*scope*/) override { return CommandState::Waiting; }
};

}  // namespace

TEST_F(EditorTest, ACommandThatDoesNotSayOtherwiseEndsWithItsFirstAnswer) {
    AskOnceCommand command;
    const CommandScope scope{editor(), newDocument()};
    EXPECT_EQ(command.start(scope), CommandState::Waiting);
    EXPECT_EQ(command.feed(scope, L"anything"), CommandState::Ended);
    EXPECT_EQ(command.prompt(), L"");
    EXPECT_FALSE(command.takesBlanks());
}

}  // namespace workbench
