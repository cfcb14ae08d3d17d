#include "workbench/desktop/mirror/accessible_tree.h"

#include "tests/workbench/desktop/mirror/dropdown_mirror_fixture.h"

namespace workbench::desktop {

class AccessibleTreeTest : public DropdownMirrorTest {
protected:
    AccessibleTreeTest() { clickField(); }

    QAccessibleInterface& accessible() { return *QAccessible::queryAccessibleInterface(&tree()); }
    QAccessibleInterface& item(int index) { return *accessible().child(index); }
};

TEST_F(AccessibleTreeTest, ATreeTellsTheItemsThatShow) {
    EXPECT_EQ(accessible().role(), QAccessible::Tree);
    EXPECT_FALSE(accessible().text(QAccessible::Name).isEmpty());
    ASSERT_EQ(accessible().childCount(), 3);
    EXPECT_EQ(item(0).role(), QAccessible::TreeItem);
    EXPECT_EQ(item(0).text(QAccessible::Name), QStringLiteral("All"));
    EXPECT_EQ(item(2).text(QAccessible::Name), QStringLiteral("doors"));
    EXPECT_EQ(item(1).parent(), &accessible());
    EXPECT_EQ(accessible().indexOfChild(&item(1)), 1);
    EXPECT_EQ(accessible().child(3), nullptr);
}

TEST_F(AccessibleTreeTest, AnItemTellsWhetherItIsOpenAndSelected) {
    EXPECT_TRUE(item(0).state().expanded);
    EXPECT_TRUE(item(1).state().collapsed);
    EXPECT_FALSE(item(2).state().expandable);
    EXPECT_EQ(accessible().focusChild(), nullptr);
    item(2).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    rest();
    EXPECT_EQ(selected(), L"doors");
    EXPECT_TRUE(item(2).state().selected);
    EXPECT_TRUE(item(2).state().focused);
    EXPECT_EQ(accessible().focusChild(), &item(2));
}

TEST_F(AccessibleTreeTest, AnItemCanBeOpened) {
    EXPECT_EQ(item(2).actionInterface()->actionNames().size(), 1);
    item(1).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    rest();
    EXPECT_EQ(accessible().childCount(), 4);
    EXPECT_EQ(item(2).text(QAccessible::Name), QStringLiteral("Inner"));
}

TEST_F(AccessibleTreeTest, AnItemIsWhereItsRowIs) {
    const QRect row = item(1).rect();
    EXPECT_EQ(row.height(), kTreeRowHeight);
    EXPECT_EQ(accessible().childAt(row.center().x(), row.center().y()), &item(1));
}

TEST_F(AccessibleTreeTest, AnItemThatHasGoneIsInvalid) {
    QAccessibleInterface& gone = item(2);
    m_combo.dropdown->tree.DeleteItem(m_combo.dropdown->doors);
    EXPECT_FALSE(gone.isValid());
    EXPECT_TRUE(gone.state().invalid);
    EXPECT_TRUE(gone.text(QAccessible::Name).isEmpty());
}

TEST_F(AccessibleTreeTest, TheCheckBelowIsACheckBoxThatCanBePressed) {
    QAccessibleInterface& box = *QAccessible::queryAccessibleInterface(&check());
    EXPECT_EQ(box.role(), QAccessible::CheckBox);
    EXPECT_EQ(box.text(QAccessible::Name), QStringLiteral("Invert"));
    EXPECT_FALSE(box.state().checked);
    box.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(box.state().checked);
}

}  // namespace workbench::desktop
