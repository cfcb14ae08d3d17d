#include "workbench/editor/editor_reactors.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

TEST(EditorReactorsTest, EachEventReachesEachReactorOnce) {
    EditorReactors reactors;
    EventLog log;
    reactors.add(&log);
    reactors.add(&log);
    reactors.commandWillStart(L"LINE");
    reactors.commandEnded(L"LINE");
    reactors.commandCancelled(L"LINE");
    reactors.commandFailed(L"LINE");
    reactors.sysVarWillChange(L"LUNITS");
    reactors.sysVarChanged(L"LUNITS", true);
    reactors.sysVarChanged(L"LUNITS", false);
    reactors.beginQuit();
    reactors.quitAborted();
    reactors.viewChanged();
    EXPECT_EQ(log.take(), (Lines{"started LINE", "ended LINE", "cancelled LINE", "failed LINE",
                                 "will change LUNITS", "changed LUNITS", "unchanged LUNITS",
                                 "quit begins", "quit aborted", "view changed"}));
}

TEST(EditorReactorsTest, AReactorMayRemoveItselfInsideAnEvent) {
    EditorReactors reactors;
    EventLog first;
    EventLog second;
    reactors.add(&first);
    reactors.add(&second);
    first.on("quit begins", [&] { reactors.remove(&first); });
    reactors.beginQuit();
    reactors.quitAborted();
    EXPECT_EQ(first.take(), Lines{"quit begins"});
    EXPECT_EQ(second.take(), (Lines{"quit begins", "quit aborted"}));
}

}  // namespace workbench
