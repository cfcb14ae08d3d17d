#include "workbench/commands/view_commands.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {
namespace {

class ViewCommandsTest : public EditorTest {
protected:
    ViewCommandsTest() : m_document(newDocument()) {
        setDb("viewports.current.eye", Value::List{0.0, 0.0, 10.0});
        setDb("viewports.current.target", Value::List{0.0, 0.0, 0.0});
        events();
    }
    Value db(const std::string& path) { return drawing::getByPath(m_document.data(), path); }
    void setDb(const std::string& path, const Value& value) {
        drawing::setByPath(m_document.data(), path, value);
    }

    Document& m_document;
};

TEST_F(ViewCommandsTest, PresetTurnsTheView) {
    run(L"_-view _front ");
    EXPECT_EQ(db("viewports.current.eye.y"), Value(-10.0));
    EXPECT_EQ(db("viewports.current.up.z"), Value(1.0));
}

TEST_F(ViewCommandsTest, SavedViewIsRestoredUnderItsNameWithBlanks) {
    run(L"_-view _save South east corner\n");
    EXPECT_EQ(db("viewports.current.appliedView"), Value("South east corner"));
    run(L"_-view _left ");
    EXPECT_NE(db("viewports.current.appliedView"), Value("South east corner"));
    run(L"'_-view _restore south EAST corner\n");
    EXPECT_EQ(db("viewports.current.eye.z"), Value(10.0));
    EXPECT_EQ(db("viewports.current.appliedView"), Value("South east corner"));
}

TEST_F(ViewCommandsTest, UnknownViewFails) {
    run(L"_-view _restore Nowhere\n");
    EXPECT_EQ(events(), (Lines{"started -VIEW", "failed -VIEW"}));
}

TEST_F(ViewCommandsTest, DeletedViewIsGone) {
    run(L"_-view _save A\n");
    run(L"_-view _delete A\n");
    EXPECT_EQ(db("views.count"), Value(0));
}

TEST_F(ViewCommandsTest, OneUndoTakesARestoreBack) {
    run(L"_-view _left ");
    EXPECT_TRUE(editor().undo());
    EXPECT_EQ(db("viewports.current.eye.z"), Value(10.0));
}

TEST_F(ViewCommandsTest, LockedViewportRefuses) {
    setDb("viewports.current.locked", true);
    events();
    run(L"_-view _top ");
    EXPECT_EQ(events(), (Lines{"started -VIEW", "failed -VIEW"}));
}

TEST_F(ViewCommandsTest, DialogNamesTheView) {
    Workbench::current().answers().queue("dialog", Value::Table{{"name", "Attic"}});
    run(L"_newview ");
    EXPECT_EQ(db("views.count"), Value(1));
    run(L"_-view _left ");
    Workbench::current().answers().queue("dialog", Value::Table{{"name", "Attic"}});
    run(L"_view ");
    EXPECT_EQ(db("viewports.current.appliedView"), Value("Attic"));
}

TEST_F(ViewCommandsTest, UnansweredDialogIsCancelled) {
    run(L"_newview ");
    EXPECT_EQ(events(), (Lines{"started NEWVIEW", "cancelled NEWVIEW"}));
    EXPECT_EQ(db("views.count"), Value(0));
}

TEST_F(ViewCommandsTest, AQuestionMarkListsTheViews) {
    EXPECT_TRUE(run(L"_-view ? "));
    EXPECT_EQ(fields("output", "text"), Lines{"No view has a name."});
    run(L"_-view _save South east corner\n");
    run(L"_-view _save Attic\n");
    m_bench.journal().take();
    EXPECT_TRUE(run(L"_-view ? "));
    EXPECT_EQ(fields("output", "text"), (Lines{"Named views:", "South east corner", "Attic"}));
}

}  // namespace
}  // namespace workbench
