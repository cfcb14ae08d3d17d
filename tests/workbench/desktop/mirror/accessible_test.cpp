#include "workbench/desktop/mirror/accessible.h"

#include "tests/workbench/desktop/mirror/mirror_fixture.h"
#include "workbench/toolkit/slider_widget.h"

#include <QAccessible>

namespace workbench::desktop {

class AccessibleTest : public MirrorTest {
protected:
    QAccessibleInterface& of(QWidget* widget) {
        return *QAccessible::queryAccessibleInterface(widget);
    }
    static void collect(QAccessibleInterface& node, std::vector<QAccessibleInterface*>& all) {
        all.push_back(&node);
        for (int i = 0; i < node.childCount(); ++i) {
            if (node.child(i) != nullptr)
                collect(*node.child(i), all);
        }
    }
};

TEST_F(AccessibleTest, NothingOnTheScreenIsWithoutAName) {
    std::vector<QAccessibleInterface*> all;
    collect(of(widget(m_stage.toolkit.frame().bars().front()->m_hWnd)), all);
    EXPECT_GT(all.size(), 100U);
    for (QAccessibleInterface* node : all) {
        const bool isSeparator = node->role() == QAccessible::Separator;
        EXPECT_TRUE(isSeparator || !node->text(QAccessible::Name).isEmpty())
            << "role " << node->role() << " at " << node->rect().x() << ", " << node->rect().y();
    }
}

TEST_F(AccessibleTest, ASliderTellsNameValueAndRangeAndTakesAValue) {
    QAccessibleInterface& slider = of(widget(kFade, "slider"));
    EXPECT_EQ(slider.role(), QAccessible::Slider);
    EXPECT_FALSE(slider.text(QAccessible::Name).isEmpty());
    QAccessibleValueInterface* value = slider.valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->minimumValue().toInt(), 0);
    EXPECT_EQ(value->maximumValue().toInt(), 90);
    value->setCurrentValue(30);
    EXPECT_EQ(value->currentValue().toInt(), 30);
    EXPECT_EQ(slider.text(QAccessible::Value), QStringLiteral("30"));
    windows().advance(500);
    EXPECT_EQ(editor().read(L"LAYLOCKFADECTL"), Value(30));
}

TEST_F(AccessibleTest, FieldsAndListsTellTheirTexts) {
    QAccessibleInterface& edit = of(widget("3DNavPointTriplet1", "x"));
    EXPECT_EQ(edit.role(), QAccessible::EditableText);
    EXPECT_EQ(edit.text(QAccessible::Value), QStringLiteral("24.000"));
    EXPECT_TRUE(edit.state().editable);
    EXPECT_TRUE(edit.state().focusable);
    EXPECT_EQ(edit.valueInterface(), nullptr);
    QAccessibleTextInterface* const text = edit.textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->characterCount(), 6);
    EXPECT_EQ(text->text(0, 2), QStringLiteral("24"));
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(3).center()), 3);
    pressKey(*widget("3DNavPointTriplet1", "x"), Qt::Key_Home);
    EXPECT_EQ(text->selectionCount(), 0);
    EXPECT_EQ(of(widget(kFade, "slider")).textInterface(), nullptr);
    QAccessibleInterface& combo = of(widget(kViews, "combo"));
    EXPECT_EQ(combo.role(), QAccessible::ComboBox);
    EXPECT_EQ(combo.text(QAccessible::Value), QStringLiteral("Garden"));
    EXPECT_EQ(combo.text(QAccessible::Name), QStringLiteral("Views"));
    EXPECT_EQ(of(widget(kFade, "slider")).text(QAccessible::Name),
              QStringLiteral("Locked layer fading"));
}

TEST_F(AccessibleTest, ButtonsTellTheirStateAndCanBePressed) {
    QAccessibleInterface& checked = of(item(L"ID_Perspective_Projection"));
    EXPECT_EQ(checked.role(), QAccessible::Button);
    EXPECT_EQ(checked.text(QAccessible::Name), QStringLiteral("Perspective projection"));
    EXPECT_TRUE(checked.state().checked);
    EXPECT_TRUE(of(item(L"ID_Animation_Play")).state().disabled);
    QAccessibleInterface& button = of(item(L"ID_Parallel_Projection"));
    ASSERT_NE(button.actionInterface(), nullptr);
    button.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(sent(), std::vector<std::string>{"_perspective\n0\n"});
}

TEST_F(AccessibleTest, ExactlyOneObjectHasTheKeyboard) {
    ItemWidget* tool = item(L"ID_Parallel_Projection");
    m_top.activateWindow();
    QApplication::processEvents();
    for (const HWND place : {window(kFade, "edit"), window(kFade, "slider"), tool->toolPanel(),
                             findPanels(windows(), L"Layers").at(0)->m_hWnd}) {
        windows().setFocus(place);
        rest();
        std::vector<QAccessibleInterface*> all;
        collect(of(&m_top), all);
        std::vector<QAccessibleInterface*> focused;
        for (QAccessibleInterface* node : all) {
            if (node->state().focused)
                focused.push_back(node);
        }
        ASSERT_EQ(focused.size(), 1U) << windows().find(place)->className;
        EXPECT_EQ(focused.front()->role() == QAccessible::Button, place == tool->toolPanel());
    }
}

TEST_F(AccessibleTest, TheHostsListsHaveNamesThatPeopleKnow) {
    std::vector<QAccessibleInterface*> all;
    collect(of(widget(m_stage.toolkit.frame().bars().front()->m_hWnd)), all);
    QStringList names;
    for (QAccessibleInterface* node : all) {
        if (node->role() == QAccessible::ComboBox)
            names.append(node->text(QAccessible::Name));
    }
    EXPECT_TRUE(names.contains(QLatin1String("Layer")));
    for (const QString& name : names)
        EXPECT_FALSE(name.contains(QLatin1String("Control"))) << name.toStdString();
}

TEST_F(AccessibleTest, FlyoutsSayThatTheyOpen) {
    int flyouts = 0;
    std::vector<QAccessibleInterface*> all;
    collect(of(widget(m_stage.toolkit.frame().bars().front()->m_hWnd)), all);
    for (QAccessibleInterface* node : all) {
        if (node->role() != QAccessible::ButtonMenu && node->role() != QAccessible::Button)
            continue;
        EXPECT_EQ(node->state().hasPopup, node->role() == QAccessible::ButtonMenu);
        flyouts += node->state().hasPopup ? 1 : 0;
    }
    EXPECT_GT(flyouts, 0);
}

TEST_F(AccessibleTest, DisabledPartsSaySo) {
    editor().set(L"PERSPECTIVE", 0);
    rest();
    EXPECT_TRUE(of(widget("3DNavZoomSliderControl", "slider")).state().disabled);
    EXPECT_TRUE(of(widget("3DNavZoomSliderControl", "edit")).state().disabled);
    EXPECT_FALSE(of(widget(kFade, "slider")).state().disabled);
}

TEST_F(AccessibleTest, PanelsTellWhetherTheyAreRolledUp) {
    MirrorWidget* panel = widget(findPanels(windows(), L"Layers").at(0)->m_hWnd);
    EXPECT_EQ(of(panel).text(QAccessible::Name), QStringLiteral("Layers"));
    EXPECT_TRUE(of(panel).state().expanded);
    click(*panel, {100, 10});
    rest();
    EXPECT_FALSE(of(panel).state().expanded);
}

}  // namespace workbench::desktop
