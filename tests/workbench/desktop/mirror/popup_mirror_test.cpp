#include "workbench/desktop/mirror/popup_mirror.h"

#include "tests/workbench/desktop/mirror/dropdown_mirror_fixture.h"

namespace workbench::desktop {

class PopupMirrorTest : public DropdownMirrorTest {};

TEST_F(PopupMirrorTest, APopupLiesBelowItsFieldOverAllElse) {
    clickField();
    ASSERT_NE(popup(), nullptr);
    EXPECT_TRUE(popup()->isVisible());
    EXPECT_EQ(popup()->parentWidget(), &m_top);
    EXPECT_EQ(popup()->pos(), field().mapTo(&m_top, QPoint(0, field().height())));
    EXPECT_EQ(m_top.childAt(popup()->geometry().center()), &tree());
    EXPECT_TRUE(tree().hasFocus());
}

TEST_F(PopupMirrorTest, NearTheEdgeAPopupStaysInTheWindow) {
    m_combo.MoveWindow({1000, 1470, 1090, 1492});
    rest();
    clickField();
    EXPECT_EQ(popup()->geometry().bottom(), m_top.rect().bottom());
    EXPECT_EQ(popup()->geometry().right(), m_top.rect().right());
}

TEST_F(PopupMirrorTest, ASecondClickOnTheFieldHidesIt) {
    clickField();
    clickField();
    EXPECT_FALSE(popup()->isVisible());
}

TEST_F(PopupMirrorTest, AClickSelectsInTheTreeAndOpensByItsButton) {
    clickField();
    click(tree(), labelOf(m_combo.dropdown->doors));
    EXPECT_EQ(selected(), L"doors");
    click(tree(), middle(treeWidget().partsOf(m_combo.dropdown->walls).button));
    EXPECT_TRUE(treeWidget().items().find(m_combo.dropdown->walls)->isOpen);
}

TEST_F(PopupMirrorTest, KeysMoveInTheTree) {
    clickField();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(selected(), L"Walls");
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(selected(), L"Inner");
    press(Qt::Key_D, QStringLiteral("d"));
    EXPECT_EQ(selected(), L"doors");
}

TEST_F(PopupMirrorTest, ALabelIsEditedInItsPlace) {
    clickField();
    click(tree(), labelOf(m_combo.dropdown->doors));
    rest();
    press(Qt::Key_F2);
    MirrorWidget* const editor = widget(windows().focus());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->parentWidget(), &tree());
    EXPECT_TRUE(editor->hasFocus());
    typeText(*editor, QStringLiteral("gates"));
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), L"gates");
    EXPECT_TRUE(tree().hasFocus());
}

TEST_F(PopupMirrorTest, TheSpaceBarClicksTheCheck) {
    clickField();
    press(Qt::Key_Tab);
    EXPECT_TRUE(check().hasFocus());
    press(Qt::Key_Space, QStringLiteral(" "));
    EXPECT_EQ(m_combo.dropdown->check.clicks, 1);
    click(check());
    EXPECT_EQ(m_combo.dropdown->check.clicks, 2);
}

}  // namespace workbench::desktop
