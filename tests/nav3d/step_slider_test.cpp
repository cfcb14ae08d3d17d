#include "tests/nav3d/step_fixture.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/qrui18/tool_panel_item.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

using testing::Contains;
using workbench::Value;
using Calls = std::vector<std::string>;

INSTANTIATE_TEST_SUITE_P(Controls, StepSliderTest, testing::Values(kSize, kRate));

TEST_P(StepSliderTest, PartsHaveTheirIdsRangeAndTexts) {
    const StepCase& row = GetParam();
    EXPECT_EQ(bench().windows().find(window())->id, row.windowId);
    EXPECT_EQ(bench().windows().find(slider())->id, row.sliderId);
    EXPECT_EQ(bench().windows().find(field())->id, 10001);
    EXPECT_EQ(widget().lowest(), row.lowest);
    EXPECT_EQ(widget().highest(), row.highest);
    const workbench::ItemView icon = workbench::viewOf(bench().toolkit(), *item(row.itemId));
    EXPECT_EQ(icon.image, row.image);
    EXPECT_EQ(icon.name, stringOf(row.label));
    EXPECT_EQ(tipOf(field()), stringOf(row.label));
}

TEST_P(StepSliderTest, TipAfterCreationHasTheTextOfTheField) {
    set(GetParam().variable, GetParam().value);
    rebuildControl();
    EXPECT_EQ(text(), GetParam().valueText);
    EXPECT_EQ(tipOf(slider()), labelled(GetParam().valueText));
}

TEST_P(StepSliderTest, PartsAreMadeInTheOrderOfTheRow) {
    takeJournal();
    rebuildControl();
    EXPECT_THAT(takeCallLines({"CQrUiProgSliderCtrl::Create"}),
                Contains("CQrUiProgSliderCtrl::Create(1342177280, object, " +
                         std::to_string(GetParam().sliderId) + ", 2)"));
    const auto& row = *dynamic_cast<CQrUiToolPanel*>(CWnd::FromHandle(window()));
    ASSERT_EQ(row.GetToolPanelItemCount(), 4);
    EXPECT_EQ(row.GetToolPanelItem(0)->GetID(), GetParam().itemId);
    EXPECT_EQ(row.GetToolPanelItem(1)->GetControl(), slider());
    EXPECT_EQ(row.GetToolPanelItem(2)->GetType(), kItemSeparator);
    EXPECT_EQ(row.GetToolPanelItem(3)->GetControl(), field());
}

TEST_P(StepSliderTest, SliderIsMadeAsLargeAsTheControl) {
    const CRect whole = firstRectOf(window());
    ASSERT_NE(whole.Width(), 0);
    EXPECT_EQ(firstRectOf(slider()), (CRect{0, 0, whole.Width(), whole.Height()}));
}

TEST_P(StepSliderTest, MessagesAreAnsweredZero) {
    EXPECT_EQ(send(1534, 100, reinterpret_cast<LPARAM>(slider())), 0);
    EXPECT_EQ(send(1534, 100, 0), 0);
    EXPECT_EQ(send(1726), 0);
    EXPECT_EQ(send(1727, 1, reinterpret_cast<LPARAM>(GetParam().variable)), 0);
    EXPECT_EQ(send(1727, 1, reinterpret_cast<LPARAM>(L"CVPORT")), 0);
    for (const WPARAM id : {10001, 4711}) {
        EXPECT_EQ(send(1735, id), 0);
        EXPECT_EQ(send(1738, id), 0);
    }
}

TEST_P(StepSliderTest, ShowsTheDrawingsValue) {
    set(GetParam().variable, GetParam().value);
    EXPECT_EQ(position(), GetParam().valuePosition);
    EXPECT_EQ(text(), GetParam().valueText);
}

TEST_P(StepSliderTest, RefreshesForItsVariablesAlone) {
    for (const wchar_t* name : GetParam().refreshing) {
        put(L"7");
        announce(name);
        EXPECT_NE(text(), L"7") << workbench::toUtf8(name);
    }
    put(L"7");
    announce(L"CVPORT");
    announce(GetParam().windowId == 102 ? L"luprec" : L"stepspersec");
    EXPECT_EQ(text(), L"7");
    press("escape");
    leave();
}

TEST_P(StepSliderTest, DragWritesAtEachStepAndStaysUnderTheHand) {
    drag({GetParam().draggedPosition});
    EXPECT_EQ(writes(), 1U);
    EXPECT_DOUBLE_EQ(value(), GetParam().draggedValue);
    EXPECT_EQ(position(), GetParam().draggedPosition);
    release();
}

TEST_P(StepSliderTest, DragShowsTheValueThenWritesItUnderALockThenShowsTheTip) {
    takeJournal();
    drag({GetParam().draggedPosition});
    std::string write = GetParam().writeOfValue;
    write = write.substr(0, write.find(',') + 2);
    Calls steps = takeCallLines({"CWnd::SetWindowText", "VxAxDocLock::VxAxDocLock", "vxedSetVar",
                                 "VxAxDocLock::~VxAxDocLock", "CQrUiProgSliderCtrl::SetSliderPos",
                                 "CQrUiProgSliderCtrl::ShowToolTip"});
    EXPECT_EQ(steps,
              (Calls{textCall(GetParam().draggedText), "VxAxDocLock::VxAxDocLock(object, 1)",
                     write + (GetParam().draggedValue > 100.0 ? "10000.000000)" : "14.500000)"),
                     "VxAxDocLock::~VxAxDocLock()", "CQrUiProgSliderCtrl::ShowToolTip()"}));
    EXPECT_EQ(tipOf(slider()), labelled(GetParam().draggedText));
    release();
}

TEST_P(StepSliderTest, TipShowsADistanceWhateverTheFieldShows) {
    constexpr int kArchitectural = 4;
    set(L"LUNITS", kArchitectural);
    drag({GetParam().windowId == 102 ? 115 : 145});
    EXPECT_EQ(tipOf(slider()), labelled(GetParam().windowId == 102 ? L"1 1/4\"" : L"1'-2 1/2\""));
    EXPECT_EQ(text(), GetParam().windowId == 102 ? L"1 1/4\"" : L"14.50");
    release();
}

TEST_P(StepSliderTest, DragKeepsNoText) {
    focusField();
    leave();
    const std::wstring before = text();
    drag({GetParam().draggedPosition});
    release();
    bench().windows().state().setText(field(), before);
    takeJournal();
    send(1735, 10001);
    EXPECT_EQ(writes(), 0U) << "the text that was kept is still the one from before";
}

TEST_P(StepSliderTest, ClickOnTheIconGoesToTheField) {
    clickIcon();
    EXPECT_TRUE(hasFocus(field()));
    leave();
}

TEST_P(StepSliderTest, AnotherSlidersMessageIsIgnored) {
    takeJournal();
    send(1534, 100, reinterpret_cast<LPARAM>(field()));
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_P(StepSliderTest, DocumentThatBecomesCurrentBringsItsValue) {
    set(GetParam().variable, GetParam().value);
    newDocument(L"B");
    EXPECT_NE(text(), GetParam().valueText);
    activateDocument(L"A");
    EXPECT_EQ(text(), GetParam().valueText);
    EXPECT_EQ(position(), GetParam().valuePosition);
}

TEST_P(StepSliderTest, MessageWithoutADocumentChangesNothing) {
    put(L"7");
    send(1726, 0, 0);
    EXPECT_EQ(text(), L"7");
    press("escape");
    leave();
}

TEST_P(StepSliderTest, DocumentWithoutADatabaseShowsTheFixedValueAtTheEnd) {
    set(GetParam().variable, GetParam().value);
    fail("VxApDocument::database");
    takeJournal();
    send(1726, 0,
         reinterpret_cast<LPARAM>(
             static_cast<VxApDocument*>(bench().editor().documents().current())));
    EXPECT_EQ(takeCallLines({"CQrUiProgSliderCtrl::SetSliderPos", "CWnd::SetWindowText"}),
              (Calls{positionCall(0), textCall(GetParam().textWithoutDrawing)}));
    EXPECT_EQ(text(), GetParam().textWithoutDrawing);
    EXPECT_EQ(position(), GetParam().lowest);
}

TEST_P(StepSliderTest, RefreshSetsTheSliderWithoutAskingWhereItStands) {
    set(GetParam().variable, GetParam().value);
    takeJournal();
    send(1727, 1, reinterpret_cast<LPARAM>(GetParam().variable));
    EXPECT_EQ(takeCallLines({"CQrUiProgSliderCtrl::SetSliderPos", "CWnd::SetWindowText"}),
              (Calls{positionCall(GetParam().valuePosition), textCall(GetParam().valueText)}));
}

TEST_P(StepSliderTest, WithoutADatabaseTheFieldIsBlankAndTheSliderStandsAtItsEnd) {
    bench().faults().fail("vxdbHostApplicationServices");
    announce(GetParam().variable);
    EXPECT_EQ(text(), L"");
    EXPECT_EQ(position(), GetParam().lowest);
}

TEST_P(StepSliderTest, CommandsAndSpacesNeverDisableIt) {
    begin(L"LINE");
    EXPECT_TRUE(isEnabled(slider()));
    EXPECT_TRUE(isEnabled(field()));
    finish();
}

class StepSizeSliderTest : public support::ControlBench {
protected:
    void SetUp() override { showControl("3DNavStepSizeSliderControl"); }
};

TEST_F(StepSizeSliderTest, PositionTwoWritesTwoHundredthsAndStandsAtFourAfterARefresh) {
    drag({2});
    EXPECT_DOUBLE_EQ(var(L"STEPSIZE").asReal(), 0.02);
    EXPECT_EQ(position(), 2);
    release();
    announce(L"STEPSIZE");
    EXPECT_EQ(position(), 4);
}

class StepsPerSecSliderTest : public support::ControlBench {
protected:
    void SetUp() override { showControl("3DNavStepsPerSecSliderControl"); }
};

TEST_F(StepsPerSecSliderTest, ThirtyStandsAtTheEnd) {
    enter(L"30");
    EXPECT_EQ(position(), 300);
    EXPECT_DOUBLE_EQ(var(L"STEPSPERSEC").asReal(), 30.0);
    leave();
}

TEST_F(StepsPerSecSliderTest, RightEndIsTakenByTheHost) {
    drag({300});
    EXPECT_NEAR(var(L"STEPSPERSEC").asReal(), 30.0, 1.0e-12);
    release();
}

}  // namespace
