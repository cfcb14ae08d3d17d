#include "workbench/script/session.h"

#include "tests/workbench/script/script_fixture.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/windows/window_system.h"

namespace workbench::script {

namespace {

class SessionTest : public ScriptTest {
protected:
    DocumentList& documents() { return workbench().editor().documents(); }
};

TEST_F(SessionTest, DocumentIsOpenedWhenOneIsNeededFirst) {
    Session session(workbench());
    EXPECT_EQ(documents().current(), nullptr);
    session.needDocument();
    ASSERT_NE(documents().current(), nullptr);
    EXPECT_EQ(documents().current()->name(), L"Drawing1");
    session.needDocument();
    EXPECT_EQ(documents().all().size(), 1U);
}

TEST_F(SessionTest, DocumentThatIsOpenAlreadyWillDo) {
    documents().create(L"A");
    Session session(workbench());
    session.needDocument();
    EXPECT_EQ(documents().all().size(), 1U);
}

TEST_F(SessionTest, ScriptThatMakesItsDocumentsGetsNoOther) {
    Session session(workbench());
    session.noteDocumentMade();
    session.needDocument();
    EXPECT_EQ(documents().current(), nullptr);
}

TEST_F(SessionTest, SettlingLeavesWhatWaitsBehindARunningCommand) {
    Session session(workbench());
    session.needDocument();
    workbench().editor().beginCommand(L"MOVE");
    CommandProcessor& processor = documents().current()->processor();
    processor.sendMacro(L"_tilemode\n0\n", 0);
    session.settle();
    EXPECT_TRUE(processor.hasQueued());
    session.runHost();
    EXPECT_FALSE(processor.hasQueued());
}

TEST_F(SessionTest, SettlingRunsWhatIsSentAtRest) {
    Session session(workbench());
    session.needDocument();
    documents().current()->processor().sendMacro(L"_tilemode\n0\n", 0);
    session.settle();
    EXPECT_EQ(workbench().editor().read(L"TILEMODE"), Value(0));
}

TEST_F(SessionTest, SentTextsAreHandedOutOnce) {
    Session session(workbench());
    session.needDocument();
    documents().current()->processor().sendMacro(L"_regen\n", 1);
    const std::vector<JournalRecord> sent = session.takeSent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent.front().field("way"), Value("menu"));
    EXPECT_TRUE(session.takeSent().empty());
}

TEST_F(SessionTest, FirstErrorOfAListenerStaysUntilItIsTaken) {
    Session session(workbench());
    session.noteListenerError("first");
    session.noteListenerError("second");
    EXPECT_EQ(session.takeListenerError(), "first");
    EXPECT_EQ(session.takeListenerError(), "");
}

}  // namespace

}  // namespace workbench::script
