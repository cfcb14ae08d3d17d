#include "workbench/desktop/app/entity_picker.h"

#include "tests/workbench/desktop/app/main_window_fixture.h"
#include "workbench/desktop/app/document_tabs.h"
#include "workbench/desktop/drawing_view/drawing_view.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/command_processor.h"

#include <QTimer>
#include <functional>
#include <set>

namespace workbench::desktop {

class EntityPickerTest : public MainWindowTest {
protected:
    using Answer = std::optional<EntitySelection::Entities>;

    Document& document() { return *editor().documents().current(); }
    DrawingView& view() { return *m_window.documentTabs().view(); }
    QPoint middle() { return view().rect().center(); }
    /// Asks for entities while a user does something.
    Answer ask(const std::function<void()>& user) {
        QTimer::singleShot(0, &view(), user);
        Answer answer;
        m_window.stage().pump.act([&] { answer = editor().selection().ask(document()); });
        return answer;
    }
    void key(int code) { pressKey(m_window.commandLine().input(), code); }
    /// A window over the whole view, from its left or its right side.
    void dragOver(bool fromLeft) {
        const QPoint from = fromLeft ? QPoint(1, 1) : view().rect().bottomRight() - QPoint(1, 1);
        const QPoint to = fromLeft ? view().rect().bottomRight() - QPoint(1, 1) : QPoint(1, 1);
        press(view(), from);
        moveHeld(view(), (from + to) / 2);
        moveHeld(view(), to);
        release(view(), to);
    }
    std::set<drawing::ObjectId> visible() {
        const drawing::Database& data = document().data();
        const Scene scene = sceneOf(data, drawing::activeViewport(data), {});
        std::set<drawing::ObjectId> entities;
        for (const SceneFace& face : scene.faces)
            entities.insert(face.entity);
        for (const SceneLine& line : scene.lines)
            entities.insert(line.entity);
        return entities;
    }
    drawing::ViewParameters shown() {
        return document()
            .data()
            .look<drawing::Viewport>(drawing::activeViewport(document().data()))
            ->view;
    }
};

TEST_F(EntityPickerTest, AClickAndEnterPickWhatShowsThere) {
    const Answer answer = ask([this] {
        click(view(), middle());
        key(Qt::Key_Return);
    });
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->size(), 1U);
    EXPECT_FALSE(view().isPicking());
}

TEST_F(EntityPickerTest, EscapeCancelsAndEnterAloneTakesNothing) {
    EXPECT_EQ(ask([this] {
                  click(view(), middle());
                  key(Qt::Key_Escape);
              }),
              std::nullopt);
    EXPECT_EQ(ask([this] { key(Qt::Key_Return); }), EntitySelection::Entities());
}

TEST_F(EntityPickerTest, AWindowTakesAllWithoutMovingTheView) {
    view().fit();
    const drawing::ViewParameters before = shown();
    const Answer answer = ask([this] {
        dragOver(false);
        key(Qt::Key_Return);
    });
    ASSERT_TRUE(answer);
    EXPECT_EQ(std::set(answer->begin(), answer->end()), visible());
    EXPECT_EQ(shown(), before);
}

TEST_F(EntityPickerTest, ShiftTakesAway) {
    const Answer answer = ask([this] {
        click(view(), middle());
        sendMouse(view(), QEvent::MouseButtonPress, middle(), Qt::LeftButton, Qt::LeftButton,
                  Qt::ShiftModifier);
        release(view(), middle());
        key(Qt::Key_Return);
    });
    EXPECT_EQ(answer, EntitySelection::Entities());
}

TEST_F(EntityPickerTest, NothingElseAnswersMeanwhile) {
    const Value before = editor().read(L"LAYLOCKFADECTL");
    ask([this] {
        click(*edit());
        enter("laylockfadectl\n20\n");
        key(Qt::Key_Escape);
    });
    EXPECT_EQ(editor().read(L"LAYLOCKFADECTL"), before);
    EXPECT_FALSE(document().processor().isActive());
}

TEST_F(EntityPickerTest, WhileAScriptHasTheHostNobodyIsAsked) {
    m_window.stage().pump.hold();
    EXPECT_EQ(editor().selection().ask(document()), std::nullopt);
}

TEST_F(EntityPickerTest, AClickBeforeACommandSelectsForIt) {
    const std::size_t count = document().data().ids(drawing::RecordKind::Entity).size();
    click(view(), middle());
    ASSERT_EQ(document().pickSet().size(), 1U);
    enter("erase");
    EXPECT_EQ(document().data().ids(drawing::RecordKind::Entity).size(), count - 1);
    EXPECT_TRUE(document().pickSet().empty());
}

TEST_F(EntityPickerTest, AClickBesideAllEndsTheSelectionAndADragLeavesIt) {
    click(view(), middle());
    press(view(), middle());
    moveHeld(view(), middle() + QPoint(30, 0));
    release(view(), middle() + QPoint(30, 0));
    EXPECT_EQ(document().pickSet().size(), 1U);
    click(view(), {2, 2});
    EXPECT_TRUE(document().pickSet().empty());
}

}  // namespace workbench::desktop
