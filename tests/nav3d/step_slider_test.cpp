#include "tests/support/control_bench.h"

#include "workbench/base/text.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

using testing::Contains;
using workbench::Value;
using Calls = std::vector<std::string>;

/// What the two controls promise, each in its own numbers.
struct StepCase {
    const char* control;
    const wchar_t* variable;
    std::vector<const wchar_t*> refreshing;
    int windowId;
    int sliderId;
    int lowest;
    int highest;
    const wchar_t* itemId;
    const char* image;
    UINT label;
    UINT refusal;
    double value;       // not the one at start
    int valuePosition;  // where it stands
    const wchar_t* valueText;
    int draggedPosition;
    double draggedValue;
    const wchar_t* tooLittle;
    const wchar_t* tooMuch;
    const wchar_t* least;  // that is taken
    const wchar_t* most;
    std::vector<std::wstring> limits;   // that a refusal names
    const wchar_t* textWithoutDrawing;  // while there are units to write it in
    const wchar_t* draggedText;
    const char* writeOfValue;
};

void PrintTo(const StepCase& row, std::ostream* out) {
    *out << row.control;
}

const StepCase kSize{"3DNavStepSizeSliderControl",
                     L"STEPSIZE",
                     {L"STEPSIZE", L"LUPREC", L"LUNITS"},
                     102,
                     5005,
                     1,
                     1000,
                     L"TPB_3DNAV_SLIDERCONTROL2",
                     "RCDATA_3DNAV_SLIDERCONTROL2",
                     1227,
                     1229,
                     0.5,
                     76,
                     L"0.50",
                     920,
                     10000.0,
                     L"0",
                     L"1000001",
                     L"0.000001",
                     L"1000000",
                     {L".0000010", L"1,000,000"},
                     L"6.00",
                     L"10000.00",
                     "vxedSetVar(\"STEPSIZE\", 0.500000)"};
const StepCase kRate{"3DNavStepsPerSecSliderControl",
                     L"STEPSPERSEC",
                     {L"STEPSPERSEC", L"LUPREC", L"luprec"},
                     103,
                     5006,
                     10,
                     300,
                     L"TPB_3DNAV_SLIDERCONTROL3",
                     "RCDATA_3DNAV_SLIDERCONTROL3",
                     1228,
                     1230,
                     15.5,
                     155,
                     L"15.50",
                     145,
                     14.5,
                     L"0.9",
                     L"30.1",
                     L"1",
                     L"30",
                     {},
                     L"1.00",
                     L"14.50",
                     "vxedSetVar(\"STEPSPERSEC\", 15.500000)"};

class StepSliderTest : public support::ControlBench, public testing::WithParamInterface<StepCase> {
protected:
    void SetUp() override {
        showControl(GetParam().control);
        set(L"LUPREC", 2);
        takeJournal();
    }

    double value() { return var(GetParam().variable).asReal(); }
    std::size_t writes() { return takeCount("vxedSetVar"); }
    std::wstring labelled(const std::wstring& value) {
        return stringOf(GetParam().label) + L":" + value;
    }
    std::wstring refusal() { return filled(GetParam().refusal, GetParam().limits); }
    static std::string textCall(const std::wstring& text) {
        return "CWnd::SetWindowText(\"CQrUiInputEditCtrl\", \"" + workbench::toUtf8(text) + "\")";
    }
    static std::string positionCall(int position) {
        return "CQrUiProgSliderCtrl::SetSliderPos(" + std::to_string(position) + ")";
    }
    std::string balloon() {
        const std::vector<std::string> all = takeTexts("balloon");
        return all.empty() ? std::string() : all.back();
    }
    const workbench::SliderWidget& widget() {
        return *dynamic_cast<workbench::SliderWidget*>(
            bench().windows().find(slider())->widget.get());
    }
};

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
    write = write.substr(0, write.find(',') + 1);
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
    bench().windows().setText(field(), before);
    takeJournal();
    send(1735, 10001);
    EXPECT_EQ(writes(), 0U) << "the text that was kept is still the one from before";
}

TEST_P(StepSliderTest, EnteredValueIsWrittenAndShown) {
    enter(GetParam().valueText);
    EXPECT_DOUBLE_EQ(value(), GetParam().value);
    EXPECT_EQ(position(), GetParam().valuePosition);
    EXPECT_EQ(balloon(), "");
    leave();
}

TEST_P(StepSliderTest, EntryMovesTheSliderThenShowsThenWritesUnderALock) {
    put(GetParam().valueText);
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCallLines({"CWnd::SetWindowText", "VxAxDocLock::VxAxDocLock", "vxedSetVar",
                             "VxAxDocLock::~VxAxDocLock", "CQrUiProgSliderCtrl::SetSliderPos",
                             "CQrUiProgSliderCtrl::ShowToolTip", "QrUiHideBalloonTip"}),
              (Calls{positionCall(GetParam().valuePosition), textCall(GetParam().valueText),
                     "VxAxDocLock::VxAxDocLock(object, 1)", GetParam().writeOfValue,
                     "VxAxDocLock::~VxAxDocLock()"}));
    leave();
}

TEST_P(StepSliderTest, EnterAndEscapeReachNoCommandLine) {
    bench().windows().setName(bench().toolkit().frame().commandLine().m_hWnd, "CommandLine");
    enter(GetParam().valueText);
    press("escape");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_TRUE(takeMessagesOf("CommandLine").empty());
    leave();
}

TEST_P(StepSliderTest, LimitsThemselvesAreTaken) {
    for (const wchar_t* limit : {GetParam().least, GetParam().most}) {
        enter(limit);
        EXPECT_EQ(balloon(), "") << workbench::toUtf8(limit);
        EXPECT_DOUBLE_EQ(value(), std::stod(limit));
        leave();
    }
}

TEST_P(StepSliderTest, HostsChangeBehindAnEntryIsFollowed) {
    enter(GetParam().valueText);
    leave();
    set(GetParam().variable, GetParam().draggedValue);
    EXPECT_EQ(text(), GetParam().draggedText);
}

TEST_P(StepSliderTest, LeavingAfterEnterWritesNothingMore) {
    enter(GetParam().valueText);
    takeCalls();
    leave();
    EXPECT_EQ(writes(), 0U);
}

TEST_P(StepSliderTest, ValueOutOfRangeIsRefused) {
    const std::wstring before = text();
    for (const wchar_t* entry : {GetParam().tooLittle, GetParam().tooMuch, L"fast", L"-1"}) {
        enter(entry);
        EXPECT_EQ(balloonTarget(), field());
        EXPECT_EQ(balloon(), workbench::toUtf8(refusal())) << workbench::toUtf8(entry);
        EXPECT_EQ(text(), before);
        EXPECT_TRUE(hasFocus(field()));
    }
    EXPECT_EQ(writes(), 0U);
    leave();
}

TEST_P(StepSliderTest, RefusedEntryIsGivenBackAndThenTold) {
    const std::wstring before = text();
    put(GetParam().tooMuch);
    takeJournal();
    press("enter");
    EXPECT_EQ(
        takeCallLines({"CWnd::SetWindowText", "CWnd::SetFocus", "QrUiShowBalloonTip",
                       "CQrUiProgSliderCtrl::SetSliderPos", "VxAxDocLock::VxAxDocLock"}),
        (Calls{textCall(before), "CWnd::SetFocus(\"CQrUiInputEditCtrl\")",
               "QrUiShowBalloonTip(object, object, \"" + workbench::toUtf8(refusal()) + "\", 0)"}));
    EXPECT_EQ(balloon(), workbench::toUtf8(refusal()));
    leave();
}

TEST_P(StepSliderTest, TypingAfterARefusalReplacesAllOfTheText) {
    enter(L"fast");
    EXPECT_NE(balloon(), "");
    workbench::gestures::typeText(bench().toolkit(), L"7");
    EXPECT_EQ(text(), L"7");
    press("escape");
    leave();
}

TEST_P(StepSliderTest, SameTextButForBlanksDoesNothing) {
    put(L" " + text() + L" ");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCallLines({"CWnd::SetWindowText", "vxdbDisToF", "vxedSetVar",
                             "CQrUiProgSliderCtrl::SetSliderPos"}),
              Calls{});
    leave();
}

TEST_P(StepSliderTest, TextIsKeptAsADistanceWhateverTheFieldShows) {
    const std::string shown = workbench::toUtf8(text());
    takeJournal();
    focusField();
    EXPECT_EQ(takeCallLines({"vxdbDisToF"}), Calls{"vxdbDisToF(\"" + shown + "\", -1)"});
    leave();
}

TEST_P(StepSliderTest, TextThatIsNoDistanceIsNotKept) {
    const std::wstring before = text();
    focusField();
    leave();
    bench().windows().setText(field(), L"fast");
    focusField();
    press("enter");
    EXPECT_EQ(balloon(), workbench::toUtf8(refusal()));
    EXPECT_EQ(text(), before);
    leave();
}

TEST_P(StepSliderTest, OtherNoticesAndOtherFieldsOnlyHideTheBalloon) {
    put(L"7");
    takeJournal();
    for (const WPARAM notice :
         {MAKELONG(10001, 0x300), MAKELONG(10002, EN_KILLFOCUS), MAKELONG(10002, EN_SETFOCUS)})
        send(WM_COMMAND, notice, reinterpret_cast<LPARAM>(field()));
    EXPECT_EQ(takeCalls(), Calls(3, "QrUiHideBalloonTip"));
    send(1735, 10002);
    send(1738, 10002);
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_EQ(text(), L"7");
    press("escape");
    leave();
}

TEST_P(StepSliderTest, EmptiedFieldRefreshesWithoutABalloon) {
    const std::wstring before = text();
    put(L"");
    leave();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(balloon(), "");
    EXPECT_EQ(writes(), 0U);
}

TEST_P(StepSliderTest, EscapeShowsTheDrawingsValueAndNotTheLastAcceptedText) {
    put(L"7");
    set(GetParam().variable, GetParam().value);
    put(L"8");
    press("escape");
    EXPECT_EQ(text(), GetParam().valueText);
    leave();
}

TEST_P(StepSliderTest, ClickOnTheIconGoesToTheField) {
    clickIcon();
    EXPECT_TRUE(hasFocus(field()));
    leave();
}

TEST_P(StepSliderTest, AnyCommandHidesTheBalloonFirst) {
    enter(L"fast");
    EXPECT_NE(balloon(), "");
    takeCalls();
    send(WM_COMMAND, 4711);
    EXPECT_EQ(takeCount("QrUiHideBalloonTip"), 1U);
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

TEST_P(StepSliderTest, RefusedWriteLeavesWhatWasEnteredUntilTheNextRefresh) {
    const double before = value();
    fail("vxedSetVar");
    enter(GetParam().valueText);
    EXPECT_EQ(text(), GetParam().valueText);
    EXPECT_DOUBLE_EQ(value(), before);
    bench().faults().unfail("vxedSetVar");
    leave();
    announce(GetParam().variable);
    EXPECT_NE(text(), GetParam().valueText);
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

TEST_F(StepsPerSecSliderTest, EntryIsRoundedToWhatIsShown) {
    set(L"LUPREC", 1);
    enter(L"2.26");
    EXPECT_DOUBLE_EQ(var(L"STEPSPERSEC").asReal(), 2.3);
    EXPECT_EQ(text(), L"2.3");
    leave();
}

}  // namespace
