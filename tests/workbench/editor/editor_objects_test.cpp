#include "workbench/editor/editor_objects.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/editor/statuses.h"

namespace workbench {

namespace {

int s_runs = 0;
void countRun() {
    ++s_runs;
}

}  // namespace

class EditorObjectsTest : public EditorTest {
protected:
    Zorq::ErrorStatus addCommand(const wchar_t* global, const wchar_t* local, int flags = 0) {
        return stack().addCommand(L"TESTS", global, local, flags, countRun, nullptr, -1, nullptr,
                                  nullptr);
    }
    VxEdCommandStack& stack() { return editor().objects().commandStack(); }
};

TEST_F(EditorObjectsTest, AreInTheRegistryUnderTheirNamesAndClasses) {
    VxRxDictionary* registry = vxrxSysRegistry();
    VxRxObject* events = registry->at(L"VxEditor");
    ASSERT_EQ(events, &editor().objects().editor());
    EXPECT_TRUE(events->isKindOf(findHostClass(L"VxEditor")));
    VxRxObject* commands = registry->at(L"ZORQ_REGISTERED_COMMANDS");
    ASSERT_EQ(commands, &stack());
    EXPECT_TRUE(commands->isKindOf(findHostClass(L"VxEdCommandStack")));
}

TEST_F(EditorObjectsTest, ReactorsComeAndGo) {
    EventLog log;
    editor().objects().editor().addReactor(&log);
    editor().quitBegin();
    editor().objects().editor().removeReactor(&log);
    editor().quitAbort();
    EXPECT_EQ(log.take(), Lines{"quit begins"});
}

TEST_F(EditorObjectsTest, AModulesCommandRunsUnderBothNamesUntilItsGroupGoes) {
    newDocument();
    s_runs = 0;
    EXPECT_EQ(addCommand(L"TESTGLOBAL", L"TESTLOCAL"), Zorq::eOk);
    EXPECT_TRUE(run(L"testlocal"));
    EXPECT_TRUE(run(L"_TestGlobal"));
    EXPECT_FALSE(run(L"_testlocal"));
    EXPECT_EQ(s_runs, 2);
    EXPECT_EQ(stack().removeGroup(L"tests"), Zorq::eOk);
    EXPECT_FALSE(run(L"testglobal"));
    EXPECT_EQ(stack().removeGroup(L"TESTS"), kKeyNotFound);
}

TEST_F(EditorObjectsTest, ANameThatTheGroupHasKeepsItsCommand) {
    EXPECT_EQ(addCommand(L"TESTGLOBAL", L"TESTLOCAL"), Zorq::eOk);
    EXPECT_EQ(addCommand(L"testglobal", L"OTHER"), kDuplicateKey);
    stack().removeGroup(L"TESTS");
}

TEST_F(EditorObjectsTest, MissingArgumentsAreRefused) {
    EXPECT_EQ(addCommand(nullptr, L"TESTLOCAL"), kInvalidInput);
    EXPECT_EQ(stack().addCommand(L"TESTS", L"A", L"B", 0, nullptr, nullptr, -1, nullptr, nullptr),
              kInvalidInput);
}

TEST_F(EditorObjectsTest, FaultsFailWithTheirStatus) {
    m_bench.faults().fail("VxEdCommandStack::addCommand", 77);
    m_bench.faults().fail("VxEdCommandStack::removeGroup", 78);
    EXPECT_EQ(addCommand(L"TESTGLOBAL", L"TESTLOCAL"), 77);
    EXPECT_EQ(stack().removeGroup(L"TESTS"), 78);
}

}  // namespace workbench
