#include "workbench/desktop/mirror/window_mirror.h"

#include "tests/workbench/desktop/mirror/mirror_fixture.h"
#include "workbench/desktop/app/host_actions.h"
#include "workbench/toolkit/palette_set_widget.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/slider_widget.h"

#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPointer>

namespace workbench::desktop {

TEST_F(MirrorTest, EachWindowOnScreenHasAWidgetAtItsPlace) {
    for (const HWND each : windows().descendants(m_stage.toolkit.frame().frame().m_hWnd)) {
        MirrorWidget* mirror = widget(each);
        const Window& shown = *windows().find(each);
        if (!windows().isOnScreen(each))
            continue;
        ASSERT_NE(mirror, nullptr) << shown.className;
        EXPECT_EQ(mirror->x(), shown.rect.left);
        EXPECT_EQ(mirror->y(), shown.rect.top);
        EXPECT_EQ(mirror->width(), shown.rect.Width());
        EXPECT_EQ(mirror->height(), shown.rect.Height());
        EXPECT_EQ(mirror->parentWidget(), widget(shown.parent));
        EXPECT_TRUE(mirror->isVisible());
    }
}

TEST_F(MirrorTest, HiddenPanelsHaveNoWidgetsUntilTheyAreShown) {
    const HWND layers = findPanels(windows(), L"Layers").at(0)->m_hWnd;
    windows().show(layers, false);
    QWidget top;
    FrameHome home(&top);
    WindowMirror mirror(m_stage, home);
    EXPECT_NE(mirror.widgetOf(findPanels(windows(), L"Navigation").at(0)->m_hWnd), nullptr);
    EXPECT_EQ(mirror.widgetOf(layers), nullptr);
    EXPECT_EQ(mirror.widgetOf(window(kFade, "slider")), nullptr);
    windows().show(layers, true);
    mirror.sync();
    EXPECT_NE(mirror.widgetOf(window(kFade, "slider")), nullptr);
}

TEST_F(MirrorTest, WidgetsFollowWindowsThatAreHiddenShownAndEnded) {
    const HWND layers = findPanels(windows(), L"Layers").at(0)->m_hWnd;
    windows().show(layers, false);
    rest();
    EXPECT_FALSE(widget(layers)->isVisible());
    windows().show(layers, true);
    rest();
    EXPECT_TRUE(widget(kFade, "slider")->isVisible());
    const HWND slider = window(kFade, "slider");
    m_workbench.windows().destroy(slider);
    rest();
    EXPECT_EQ(widget(slider), nullptr);
}

TEST_F(MirrorTest, DragOfAThumbWritesTheVariable) {
    MirrorWidget* slider = widget(kFade, "slider");
    const auto* shown = dynamic_cast<SliderWidget*>(slider->host()->widget.get());
    const SliderScale scale = shown->scale(*slider->host());
    press(*slider, {scale.middleAt(shown->position()), 8});
    moveHeld(*slider, {scale.middleAt(20), 8});
    moveHeld(*slider, {scale.middleAt(30), 8});
    release(*slider, {scale.middleAt(30), 8});
    windows().advance(500);
    rest();
    EXPECT_EQ(editor().read(L"LAYLOCKFADECTL").asInteger(), shown->position());
    EXPECT_NEAR(shown->position(), 30, 1);
    EXPECT_EQ(windows().focus(), m_stage.toolkit.frame().drawingView().m_hWnd);
}

TEST_F(MirrorTest, TypedNumberIsTakenWithEnterAndGivenUpWithEscape) {
    MirrorWidget* edit = widget(kFade, "edit");
    click(*edit);
    rest();
    EXPECT_EQ(m_top.focusWidget(), edit);
    pressKey(*edit, Qt::Key_A, QStringLiteral("\x01"), Qt::ControlModifier);
    typeText(*edit, QStringLiteral("35"));
    EXPECT_EQ(edit->host()->text, L"35");
    pressKey(*edit, Qt::Key_Return);
    EXPECT_EQ(editor().read(L"LAYLOCKFADECTL").asInteger(), 35);
    EXPECT_EQ(windows().focus(), m_stage.toolkit.frame().drawingView().m_hWnd);
    click(*edit);
    pressKey(*edit, Qt::Key_A, QStringLiteral("\x01"), Qt::ControlModifier);
    typeText(*edit, QStringLiteral("80"));
    pressKey(*edit, Qt::Key_Escape);
    EXPECT_EQ(editor().read(L"LAYLOCKFADECTL").asInteger(), 35);
}

TEST_F(MirrorTest, ArrowKeysMoveTheSliderThatTabHasBroughtTheKeyboardTo) {
    MirrorWidget* edit = widget(kFade, "edit");
    click(*edit);
    pressKey(*edit, Qt::Key_Backtab, {}, Qt::ShiftModifier);
    rest();
    MirrorWidget* slider = widget(kFade, "slider");
    EXPECT_EQ(windows().focus(), slider->handle());
    EXPECT_EQ(m_top.focusWidget(), slider);
    const auto* shown = dynamic_cast<SliderWidget*>(slider->host()->widget.get());
    const int before = shown->position();
    pressKey(*slider, Qt::Key_Right);
    EXPECT_EQ(shown->position(), before + 1);
    pressKey(*slider, Qt::Key_End);
    EXPECT_EQ(shown->position(), shown->highest());
}

TEST_F(MirrorTest, WheelTurnsOnlyTheControlWithTheKeyboardAndScrollsOtherwise) {
    m_home.resize(1100, 500);
    rest();
    MirrorWidget* slider = widget(kFade, "slider");
    const auto* shown = dynamic_cast<SliderWidget*>(slider->host()->widget.get());
    const int before = shown->position();
    const int top = windows().screenRect(slider->handle()).top;
    turnWheel(*slider, -1);
    rest();
    EXPECT_EQ(shown->position(), before);
    EXPECT_LT(windows().screenRect(slider->handle()).top, top);
    windows().setFocus(slider->handle());
    turnWheel(*slider, 1);
    EXPECT_NE(shown->position(), before);
}

TEST_F(MirrorTest, AListWithNothingInItShowsItsName) {
    CQrUiComboCtrl empty;
    empty.Create(WS_CHILD | WS_VISIBLE, {0, 0, 120, 100}, windows().find(window(kFade))->object,
                 77);
    rest();
    const QImage image = widget(empty.m_hWnd)->grab().toImage();
    const QColor paper = image.pixelColor(2, 2);
    int inked = 0;
    for (int x = 4; x < image.width() - 20; ++x)
        inked += image.pixelColor(x, image.height() / 2) != paper ? 1 : 0;
    EXPECT_GT(inked, 5);
}

TEST_F(MirrorTest, ClickOnAToolSendsItsCommand) {
    ItemWidget* tool = item(L"ID_Perspective_Projection");
    ASSERT_NE(tool, nullptr);
    EXPECT_TRUE(tool->testAttribute(Qt::WA_TransparentForMouseEvents));
    click(*tool->parentWidget(), tool->geometry().center());
    EXPECT_EQ(sent(), std::vector<std::string>{"_perspective\n1\n"});
}

TEST_F(MirrorTest, ListDropsDownAndAClickChooses) {
    MirrorWidget* field = widget(kViews, "combo");
    click(*field, {5, 5});
    rest();
    auto* list = m_top.findChild<QListWidget*>();
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(list->isVisible());
    const auto top = list->findItems(QStringLiteral("Top"), Qt::MatchExactly);
    ASSERT_EQ(top.size(), 1);
    click(*list->viewport(), list->visualItemRect(top.front()).center());
    rest();
    EXPECT_EQ(sent(), std::vector<std::string>{"'_-view _top "});
    EXPECT_FALSE(list->isVisible());
}

TEST_F(MirrorTest, ClickElsewhereClosesTheList) {
    click(*widget(kViews, "combo"), {5, 5});
    rest();
    click(*widget(kFade, "edit"));
    rest();
    EXPECT_FALSE(m_top.findChild<QListWidget*>()->isVisible());
    EXPECT_TRUE(sent().empty());
}

TEST_F(MirrorTest, RefusedEntryHasItsBalloonBesideTheField) {
    MirrorWidget* edit = widget("3DNavStepSizeSliderControl", "edit");
    click(*edit);
    pressKey(*edit, Qt::Key_A, QStringLiteral("\x01"), Qt::ControlModifier);
    typeText(*edit, QStringLiteral("much"));
    pressKey(*edit, Qt::Key_Return);
    rest();
    const auto* bubble = m_top.findChild<QLabel*>();
    ASSERT_NE(bubble, nullptr);
    EXPECT_TRUE(bubble->isVisible());
    EXPECT_TRUE(bubble->text().startsWith(QLatin1String("Enter a step size")));
    EXPECT_EQ(windows().focus(), edit->handle()) << "to be corrected";
    pressKey(*edit, Qt::Key_Escape);
    click(*widget(kFade, "edit"));
    rest();
    EXPECT_EQ(m_top.findChild<QLabel*>(), nullptr);
}

TEST_F(MirrorTest, AClickOnABalloonEndsItAndReachesNothingBelow) {
    MirrorWidget* edit = widget("3DNavStepSizeSliderControl", "edit");
    m_stage.toolkit.balloons().show(window("3DNavStepSizeSliderControl"), edit->handle(), L"No.");
    rest();
    auto* bubble = m_top.findChild<QLabel*>();
    ASSERT_NE(bubble, nullptr);
    EXPECT_FALSE(bubble->testAttribute(Qt::WA_TransparentForMouseEvents));
    const QPointer<QLabel> watched = bubble;
    press(*bubble, {5, 5});
    EXPECT_FALSE(m_stage.toolkit.balloons().isShown());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(watched.data(), nullptr);
    EXPECT_TRUE(sent().empty());
}

TEST_F(MirrorTest, ABalloonFollowsItsFieldAndGoesWithAKeyElsewhere) {
    m_home.resize(1100, 400);
    rest();
    MirrorWidget* edit = widget(kFade, "edit");
    m_stage.toolkit.balloons().show(window(kFade), edit->handle(), L"No.");
    rest();
    const QPointer<QLabel> bubble = m_top.findChild<QLabel*>();
    ASSERT_NE(bubble, nullptr);
    const int before = bubble->y();
    turnWheel(*edit, -1);
    rest();
    EXPECT_LT(bubble->y(), before);
    QWidget pane(&m_top);
    pressKey(pane, Qt::Key_A, QStringLiteral("a"));
    rest();
    EXPECT_EQ(bubble.data(), nullptr);
}

TEST_F(MirrorTest, ClickOnATitleRollsThePanelUp) {
    const HWND layers = findPanels(windows(), L"Layers").at(0)->m_hWnd;
    click(*widget(layers), {100, 10});
    rest();
    EXPECT_EQ(widget(layers)->height(), PanelWidget::kTitleHeight);
    EXPECT_FALSE(widget(kFade, "slider")->isVisible());
}

TEST_F(MirrorTest, DraggedOffItsGripTheDashboardFloatsAndDocksAgainByADoubleClick) {
    CQrUiPaletteSet& set = *m_stage.toolkit.frame().bars().front();
    MirrorWidget* bar = widget(set.m_hWnd);
    press(*bar, {20, 5});
    moveHeld(*bar, {-200, 60});
    EXPECT_TRUE(set.IsFloating());
    MirrorWidget* frame = widget(m_stage.toolkit.frame().frameOf(set)->m_hWnd);
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(QWidget::mouseGrabber(), frame);
    const QPoint torn = frame->pos();
    moveHeld(*frame, frame->mapFromGlobal(m_top.mapToGlobal(QPoint(600, 300))));
    m_mirror.sync();
    EXPECT_NE(frame->pos(), torn) << "it follows the mouse that tore it off";
    release(*frame, frame->mapFromGlobal(m_top.mapToGlobal(QPoint(600, 300))));
    rest();
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    EXPECT_TRUE(set.IsFloating());
    EXPECT_TRUE(frame->isWindow());
    EXPECT_TRUE(frame->isVisible());
    EXPECT_TRUE(frame->isAncestorOf(widget(kFade, "slider")));
    const QRect before = frame->geometry();
    press(*frame, {40, 8});
    moveHeld(*frame, {60, 38});
    release(*frame, {60, 38});
    rest();
    EXPECT_EQ(frame->geometry(), before.translated(20, 30));
    doubleClick(*frame, {40, 8});
    rest();
    EXPECT_FALSE(set.IsFloating());
    EXPECT_TRUE(m_top.isAncestorOf(widget(kFade, "slider")));
}

/// Places of the dashboard, one after the other.
class DockingTest : public MirrorTest {
protected:
    CQrUiPaletteSet& set() { return *m_stage.toolkit.frame().bars().front(); }
    MainFrame& frame() { return m_stage.toolkit.frame(); }
    /// Each window on screen has a widget on show in that of its parent, at its place.
    void expectNothingEmpty(WindowMirror& mirror, const char* when) {
        mirror.sync();
        std::vector<HWND> all = windows().descendants(set().m_hWnd);
        all.push_back(set().m_hWnd);
        for (const HWND each : all) {
            if (!windows().isOnScreen(each))
                continue;
            const MirrorWidget* const shown = mirror.widgetOf(each);
            ASSERT_NE(shown, nullptr) << when;
            const Window& window = *windows().find(each);
            EXPECT_TRUE(shown->isVisible()) << when << ": " << window.className;
            EXPECT_EQ(shown->parentWidget(), mirror.widgetOf(window.parent)) << when;
            EXPECT_EQ(shown->width(), window.rect.Width()) << when;
        }
    }
};

TEST_F(DockingTest, InFiftyWindowsNoChangeOfPlaceLeavesAnEmptyStrip) {
    for (int start = 0; start < 50 && !HasFailure(); ++start) {
        QWidget top;
        top.resize(1000, 700);
        FrameHome home(&top);
        home.resize(top.size());
        home.attach(m_stage);
        top.show();
        WindowMirror mirror(m_stage, home);
        expectNothingEmpty(mirror, "at first");
        frame().floatAt(set(), {300, 100, 540, 500});
        expectNothingEmpty(mirror, "floating");
        frame().dock(set(), Edge::Right);
        expectNothingEmpty(mirror, "docked at the right again");
        frame().dock(set(), Edge::Left);
        expectNothingEmpty(mirror, "docked at the left");
        resetLayout(m_workbench);
        rest();
        expectNothingEmpty(mirror, "reset from the left");
        frame().floatAt(set(), {300, 100, 540, 500});
        expectNothingEmpty(mirror, "floating again");
        resetLayout(m_workbench);
        rest();
        expectNothingEmpty(mirror, "reset while it floats");
    }
}

TEST_F(MirrorTest, LetGoAtAnEdgeOfTheHostsWindowTheDashboardDocksThere) {
    CQrUiPaletteSet& set = *m_stage.toolkit.frame().bars().front();
    m_stage.toolkit.frame().floatAt(set, {300, 300, 540, 700});
    rest();
    MirrorWidget* frame = widget(m_stage.toolkit.frame().frameOf(set)->m_hWnd);
    const QPoint edge = frame->mapFromGlobal(m_home.mapToGlobal(QPoint(10, 400)));
    press(*frame, {40, 8});
    moveHeld(*frame, edge);
    release(*frame, frame->mapFromGlobal(m_home.mapToGlobal(QPoint(10, 400))));
    rest();
    EXPECT_FALSE(set.IsFloating());
    EXPECT_EQ(m_stage.toolkit.paletteSets().of(&set).place.edge, Edge::Left);
    EXPECT_LT(widget(set.m_hWnd)->mapTo(&m_home, QPoint()).x(), 100);
}

TEST_F(MirrorTest, TheCornerSizesAFloatingDashboardAndTheCrossHidesIt) {
    CQrUiPaletteSet& set = *m_stage.toolkit.frame().bars().front();
    m_stage.toolkit.frame().floatAt(set, {300, 300, 540, 700});
    rest();
    MirrorWidget* frame = widget(m_stage.toolkit.frame().frameOf(set)->m_hWnd);
    const QSize before = frame->size();
    const QPoint corner = frame->rect().bottomRight();
    press(*frame, corner - QPoint(2, 2));
    moveHeld(*frame, corner + QPoint(58, -42));
    release(*frame, corner + QPoint(58, -42));
    rest();
    EXPECT_EQ(frame->width(), before.width() + 60);
    EXPECT_LT(frame->height(), before.height());
    click(*frame, {frame->width() - 8, 8});
    rest();
    EXPECT_FALSE(frame->isVisible());
}

TEST_F(MirrorTest, GripRollsTheDashboardUpOutAndHidesIt) {
    CQrUiPaletteSet& set = *m_stage.toolkit.frame().bars().front();
    MirrorWidget* bar = widget(set.m_hWnd);
    const int full = bar->width();
    click(*bar, {full - 20, 5});
    rest();
    EXPECT_LT(bar->width(), full);
    EXPECT_FALSE(widget(kFade, "slider")->isVisible());
    click(*bar, {10, 100});
    rest();
    EXPECT_EQ(bar->width(), full);
    click(*bar, {full - 20, 5});
    rest();
    EXPECT_FALSE(m_stage.toolkit.paletteSets().of(&set).place.anchored);
    click(*bar, {full - 6, 5});
    rest();
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(MirrorTest, KeyboardGoesWhereTheHostBringsIt) {
    int toDrawing = 0;
    m_mirror.setOnKeyboardToDrawing([&toDrawing] { ++toDrawing; });
    windows().setFocus(window(kFade, "edit"));
    rest();
    EXPECT_EQ(m_top.focusWidget(), widget(kFade, "edit"));
    EXPECT_EQ(toDrawing, 0);
    windows().setFocus(m_stage.toolkit.frame().drawingView().m_hWnd);
    rest();
    EXPECT_EQ(toDrawing, 1);
}

TEST_F(MirrorTest, FieldBelowTheEdgeScrollsIntoViewWithTheKeyboard) {
    m_home.resize(1100, 300);
    rest();
    const HWND field = window("3DNavStepsPerSecSliderControl", "edit");
    windows().setFocus(field);
    rest();
    const CRect room = windows().screenRect(m_stage.toolkit.frame().bars().front()->m_hWnd);
    EXPECT_LE(windows().screenRect(field).bottom, room.bottom);
    EXPECT_GE(windows().screenRect(field).top, room.top);
}

}  // namespace workbench::desktop
