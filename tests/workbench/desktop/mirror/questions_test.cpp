#include "workbench/desktop/mirror/questions.h"

#include "tests/workbench/desktop/mirror/mirror_fixture.h"
#include "workbench/desktop/look/text.h"

#include <QAbstractButton>
#include <QCursor>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <QToolTip>

namespace workbench::desktop {

class QuestionsTest : public MirrorTest {
protected:
    /// Does something as soon as what it waits for is on the screen.
    template <class Widget, class Do>
    void onceThereIs(QWidget* (*where)(), Do what) {
        auto* timer = new QTimer(&m_top);
        QObject::connect(timer, &QTimer::timeout, [timer, where, what] {
            if (auto* widget = qobject_cast<Widget*>(where())) {
                timer->stop();
                what(*widget);
            }
        });
        timer->start(1);
    }
    /// Answers the menu that opens next by the line of a label; an empty one closes it.
    void answerMenu(const QString& label) {
        onceThereIs<QMenu>(&QApplication::activePopupWidget, [this, label](QMenu& menu) {
            for (QAction* action : menu.actions()) {
                m_lines.append(action->text());
                if (!label.isEmpty() && action->text() == label) {
                    menu.setActiveAction(action);
                    pressKey(menu, Qt::Key_Return);
                    return;
                }
            }
            menu.close();
        });
    }
    void answerBox(QMessageBox::StandardButton button) {
        onceThereIs<QMessageBox>(&QApplication::activeModalWidget,
                                 [this, button](QMessageBox& box) {
                                     m_boxText = box.text();
                                     m_boxIcon = box.icon();
                                     box.button(button)->click();
                                 });
    }

    Questions m_questions{m_stage, m_top};
    QStringList m_lines;
    QString m_boxText;
    QMessageBox::Icon m_boxIcon = QMessageBox::NoIcon;
};

TEST_F(QuestionsTest, APanelsContextMenuOpensAndItsChoiceIsTaken) {
    MirrorWidget* panel = widget(findPanels(windows(), L"Layers").at(0)->m_hWnd);
    answerMenu(QStringLiteral("Collapse"));
    openMenu(*panel, {100, 10});
    rest();
    EXPECT_TRUE(m_lines.contains(QStringLiteral("Collapse")));
    EXPECT_EQ(panel->height(), 20);
}

TEST_F(QuestionsTest, AMenuThatIsClosedChoosesNothing) {
    MirrorWidget* panel = widget(findPanels(windows(), L"Layers").at(0)->m_hWnd);
    const int before = panel->height();
    answerMenu({});
    openMenu(*panel, {100, 10});
    rest();
    EXPECT_GT(m_lines.size(), 3);
    EXPECT_EQ(panel->height(), before);
}

TEST_F(QuestionsTest, AMessageBoxIsAsked) {
    answerBox(QMessageBox::No);
    EXPECT_EQ(m_stage.toolkit.boxes().show(L"Really?", 4, ""), MessageBoxes::kNo);
    EXPECT_EQ(m_boxText, QStringLiteral("Really?"));
    answerBox(QMessageBox::Ok);
    EXPECT_EQ(m_stage.toolkit.boxes().show(L"So it is.", 0x40, ""), MessageBoxes::kOk);
    EXPECT_EQ(m_boxIcon, QMessageBox::Information);
    answerBox(QMessageBox::Ok);
    m_stage.toolkit.boxes().show(L"Mind it.", 0x30, "");
    EXPECT_EQ(m_boxIcon, QMessageBox::Warning);
}

TEST_F(QuestionsTest, WhileAScriptHasTheHostNobodyIsAsked) {
    m_pump.hold();
    EXPECT_EQ(m_stage.toolkit.boxes().show(L"Really?", 4, ""), MessageBoxes::kOk);
    EXPECT_EQ(
        m_stage.toolkit.menus().track({MenuLine{.text = L"Yes", .command = 1, .children = {}}}),
        std::nullopt);
}

TEST_F(QuestionsTest, AQueuedAnswerComesFirst) {
    m_workbench.answers().queue("box", "cancel");
    EXPECT_EQ(m_stage.toolkit.boxes().show(L"Really?", 1, ""), MessageBoxes::kCancel);
}

TEST_F(QuestionsTest, ASlidersTipNamesItsVariable) {
    MirrorWidget* slider = widget(kFade, "slider");
    hover(*slider, slider->rect().center());
    windows().advance(600);
    EXPECT_TRUE(QToolTip::text().endsWith(QLatin1String("\nVariable: LAYLOCKFADECTL")));
    MirrorWidget* field = widget(kFade, "edit");
    hover(*field, field->rect().center());
    windows().advance(600);
    EXPECT_FALSE(QToolTip::text().contains(QLatin1String("Variable")));
}

TEST_F(QuestionsTest, NoTooltipComesOnceTheMouseHasLeft) {
    ItemWidget* line = item(L"ID_Parallel_Projection");
    hover(*line->parentWidget(), line->geometry().center());
    QCursor::setPos(m_top.mapToGlobal(QPoint(-40, -40)));
    QEvent leaving(QEvent::Leave);
    QApplication::sendEvent(line->parentWidget(), &leaving);
    windows().advance(600);
    EXPECT_EQ(m_stage.toolkit.toolTips().shown(), L"");
    EXPECT_EQ(m_stage.toolkit.mouse().over(), nullptr);
}

TEST_F(QuestionsTest, TooltipsComeWhenTheMouseRestsAndTellWhyAToolIsDisabled) {
    m_stage.whyDisabled = [](HWND, const CQrUiToolPanelItem* tool) {
        return QStringLiteral("No drawing is open for ") + toQt(tool->GetID());
    };
    ItemWidget* play = item(L"ID_Animation_Play");
    hover(*play->parentWidget(), play->geometry().center());
    windows().advance(600);
    EXPECT_TRUE(QToolTip::text().startsWith(QLatin1String("Play the animation")));
    EXPECT_TRUE(QToolTip::text().endsWith(QLatin1String("\nNo drawing is open for ") +
                                          toQt(play->item()->GetID())));
    ItemWidget* line = item(L"ID_Parallel_Projection");
    hover(*line->parentWidget(), line->geometry().center());
    windows().advance(600);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Parallel projection"));
}

}  // namespace workbench::desktop
