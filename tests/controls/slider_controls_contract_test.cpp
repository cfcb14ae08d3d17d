#include "tests/support/control_bench.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/windows/window_system.h"

#include <hostapi/zorq/editor.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace {

/// A control with a slider and an edit field, and a change in the host that alters what it shows.
struct SliderCase {
    const char* name;
    const wchar_t* variable;
    workbench::Value value;  // not the variable's at start
};

void PrintTo(const SliderCase& row, std::ostream* out) {
    *out << row.name;
}

/// All of them: each promises what follows here. A further control joins by one line.
const SliderCase kControls[] = {
    {"LayerLockTransparencySliderControl", L"LAYLOCKFADECTL", 35},
    {"3DNavZoomSliderControl", L"LUPREC", 2},
    {"3DNavStepSizeSliderControl", L"STEPSIZE", 0.5},
    {"3DNavStepsPerSecSliderControl", L"STEPSPERSEC", 15.5},
};

constexpr const wchar_t* kEntry = L"9";  // each of them takes it, and none shows it at start
constexpr int kOtherPosition = 35;

constexpr UINT kSliderMoved = 1534;
constexpr UINT kDocBecameCurrent = 1726;
constexpr UINT kSysVarChanged = 1727;
constexpr UINT kEditEnter = 1735;
constexpr UINT kEditEscape = 1738;

/// Does something once, inside the host's first word of a change.
class OnFirstChange final : public VxEditorReactor {
public:
    explicit OnFirstChange(std::function<void()> action) : m_action(std::move(action)) {}

    bool hasRun() const { return m_hasRun; }
    // VxEditorReactor:
    void sysVarWillChange(const wchar_t* /*name*/) override { run(); }
    void viewChanged() override { run(); }

private:
    void run() {
        if (!std::exchange(m_hasRun, true))
            m_action();
    }

    std::function<void()> m_action;
    bool m_hasRun = false;
};

class SliderContractTest : public support::ControlBench,
                           public testing::WithParamInterface<SliderCase> {
protected:
    void SetUp() override {
        showControl(GetParam().name);
        set(L"PERSPECTIVE", 1);  // the lens has fields of use in perspective only
        takeJournal();
    }
    void TearDown() override {
        m_outside.reset();
        ControlBench::TearDown();
    }

    /// Types into the field without ending the entry.
    void typeEntry() {
        put(kEntry);
        takeJournal();
    }
    /// Offers a key to the control as it passes by on its road; whether it was consumed.
    bool offer(WPARAM key) {
        MSG msg{field(), WM_KEYDOWN, key, 0};
        return CWnd::FromHandle(window())->PreTranslateMessage(&msg) != 0;
    }
    bool hasWritten() {
        const std::vector<std::string> made = takeCalls();
        return std::any_of(made.begin(), made.end(), [](const std::string& call) {
            return call == "vxedSetVar" || call == "vxgsSetLensLength";
        });
    }
    bool got(UINT number) {
        const auto numbers = takeMessagesOf(GetParam().name);
        return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
    }
    /// A control of the name outside of the dashboard; null if there can be none.
    HWND makeOutside() {
        constexpr CRect kPlace{0, 0, 200, 100};
        m_outside = std::make_unique<CQrUiToolPanel>();
        m_outside->Create(WS_CHILD | WS_VISIBLE, kPlace, AfxGetMainWnd(), 1, 0);
        return make(m_outside->m_hWnd);
    }
    HWND make(HWND parent) {
        const std::string name = GetParam().name;
        return exported<VxDaGetCustomControlFn>("VxDaGetCustomControl")(
            std::wstring(name.begin(), name.end()).c_str(), parent);
    }
    void hideAllPanels() {
        const VxDaPanelList none;
        exported<VxDaSetVisiblePanelsFn>("VxDaSetVisiblePanels")(&none);
        settle();
    }

private:
    std::unique_ptr<CQrUiToolPanel> m_outside;  // null until it is needed
};

std::string nameOf(const testing::TestParamInfo<SliderCase>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Controls, SliderContractTest, testing::ValuesIn(kControls), nameOf);

// Keys

TEST_P(SliderContractTest, EnterInTheFieldIsConsumedAndTold) {
    focusField();
    EXPECT_TRUE(offer(VK_RETURN));
    EXPECT_TRUE(got(kEditEnter));
    EXPECT_TRUE(takeSent().empty());
}

TEST_P(SliderContractTest, EscapeInTheFieldIsConsumedAndRestoresTheText) {
    const std::wstring before = text();
    typeEntry();
    ASSERT_NE(text(), before);
    takeJournal();
    EXPECT_TRUE(offer(VK_ESCAPE));
    EXPECT_TRUE(got(kEditEscape));
    EXPECT_EQ(text(), before);
    EXPECT_FALSE(hasWritten());
}

TEST_P(SliderContractTest, KeysElsewhereGoTheOrdinaryWay) {
    leave();
    takeJournal();
    EXPECT_FALSE(offer(VK_RETURN));
    EXPECT_FALSE(offer(VK_ESCAPE));
    EXPECT_FALSE(got(kEditEnter));
}

// What isn't its own

TEST_P(SliderContractTest, ForeignSliderIsIgnored) {
    const std::wstring before = text();
    send(kSliderMoved, kOtherPosition, reinterpret_cast<LPARAM>(window()));
    wait(1000);
    EXPECT_EQ(text(), before);
    EXPECT_FALSE(hasWritten());
}

TEST_P(SliderContractTest, ForeignFieldIsIgnored) {
    constexpr WPARAM kForeignField = 4711;
    typeEntry();
    const std::wstring typed = text();
    takeJournal();
    send(kEditEnter, kForeignField);
    send(kEditEscape, kForeignField);
    EXPECT_EQ(text(), typed);
    EXPECT_FALSE(hasWritten());
    offer(VK_ESCAPE);
}

// What the host tells

TEST_P(SliderContractTest, ChangeFromTheHostIsShownAndNotWrittenBack) {
    const std::wstring before = text();
    set(GetParam().variable, GetParam().value);
    wait(1000);
    EXPECT_NE(text(), before);
    EXPECT_FALSE(hasWritten());
}

TEST_P(SliderContractTest, ForeignVariableIsIgnored) {
    const std::wstring before = text();
    set(L"LTSCALE", 3.0);
    EXPECT_EQ(text(), before);
    EXPECT_FALSE(hasWritten());
}

TEST_P(SliderContractTest, EventWithoutANameIsIgnored) {
    EXPECT_EQ(send(kSysVarChanged, 1, 0), 0);
    EXPECT_TRUE(takeCalls().empty());
}

TEST_P(SliderContractTest, GetsBothBroadcastsAndWritesNothingForThem) {
    set(L"LTSCALE", 3.0);
    EXPECT_TRUE(got(kSysVarChanged));
    newDocument(L"B");
    EXPECT_TRUE(got(kDocBecameCurrent));
    activateDocument(L"A");
    EXPECT_TRUE(got(kDocBecameCurrent));
    wait(1000);
    set(L"LTSCALE", 2.0);
    wait(1000);
    EXPECT_FALSE(hasWritten());
}

TEST_P(SliderContractTest, FollowsTheHostWhileItsPanelIsHidden) {
    hideAllPanels();
    const std::wstring before = text();
    takeJournal();
    set(GetParam().variable, GetParam().value);
    wait(1000);
    EXPECT_NE(text(), before);
    EXPECT_FALSE(hasWritten());
}

TEST_P(SliderContractTest, ToolkitsQueriesAreAnsweredOne) {
    EXPECT_EQ(send(1567), 1);
    EXPECT_EQ(send(1571), 1);
    EXPECT_EQ(send(1566), 0) << "nothing of it keeps the focus";
}

// Creation

TEST_P(SliderContractTest, CreationMakesIconSliderAndFieldAndWritesNothing) {
    rebuildControl();
    EXPECT_NE(slider(), nullptr);
    EXPECT_NE(field(), nullptr);
    wait(1000);
    EXPECT_FALSE(hasWritten());
}

TEST_P(SliderContractTest, NoControlWithoutASlider) {
    fail("CQrUiProgSliderCtrl::Create");
    EXPECT_EQ(makeOutside(), nullptr);
}

TEST_P(SliderContractTest, NoControlWithoutAParent) {
    EXPECT_EQ(make(nullptr), nullptr);
    EXPECT_NE(control(GetParam().name), nullptr);
}

// Life

TEST_P(SliderContractTest, ReleaseInItsOwnWriteIsHarmless) {
    typeEntry();
    OnFirstChange release([this] { EXPECT_EQ(notify(kDashboardReleaseControls), 1); });
    bench().editor().reactors().add(&release);
    press("enter");
    wait(1000);
    EXPECT_TRUE(release.hasRun());
    EXPECT_EQ(control(GetParam().name), nullptr);
    bench().editor().reactors().remove(&release);
    EXPECT_TRUE(unload());
}

TEST_P(SliderContractTest, ReleaseInTheWriteOfADragIsHarmless) {
    OnFirstChange release([this] { EXPECT_EQ(notify(kDashboardReleaseControls), 1); });
    bench().editor().reactors().add(&release);
    send(kSliderMoved, kOtherPosition, reinterpret_cast<LPARAM>(slider()));
    wait(1000);
    EXPECT_TRUE(release.hasRun());
    EXPECT_EQ(control(GetParam().name), nullptr);
    bench().editor().reactors().remove(&release);
    EXPECT_TRUE(unload());
}

TEST_P(SliderContractTest, ReleaseInTheMiddleOfAnEntryIsHarmless) {
    typeEntry();
    EXPECT_EQ(notify(kDashboardReleaseControls), 1);
    EXPECT_EQ(control(GetParam().name), nullptr);
    wait(1000);
    EXPECT_TRUE(unload());
}

// Two of a kind

std::string menuWithTwo(const std::string& control) {
    const std::string item = R"({"type": "control", "control": ")" + control + R"("})";
    return R"({"menuGroups": [{"name": "MAIN"}], "panels": [{"menuGroup": "MAIN", "id": "P",
        "title": "P", "toolPanels": ["TP"]}], "toolPanels": [{"menuGroup": "MAIN", "id": "TP",
        "items": [)" +
           item + R"(, {"type": "rowBreak"}, )" + item +
           R"(]}], "workspaces": [{"name": "W", "panels": [{"menuGroup": "MAIN",
        "panel": "P"}]}], "currentWorkspace": "W"})";
}

class SliderPairTest : public SliderContractTest {
protected:
    void SetUp() override {
        useMenu(menuWithTwo(GetParam().name));
        SliderContractTest::SetUp();
    }
    std::wstring textOfSecond() {
        return bench().windows().find(part(control(GetParam().name, 2), "edit"))->text;
    }
};

INSTANTIATE_TEST_SUITE_P(Controls, SliderPairTest, testing::ValuesIn(kControls), nameOf);

TEST_P(SliderPairTest, BothShowWhatIsEnteredInOne) {
    ASSERT_NE(control(GetParam().name, 2), nullptr);
    enter(kEntry);
    leave();
    wait(1000);
    EXPECT_EQ(textOfSecond(), text());
}

TEST_P(SliderPairTest, BothFollowTheHostAndNeitherWrites) {
    ASSERT_NE(control(GetParam().name, 2), nullptr);
    const std::wstring before = text();
    set(GetParam().variable, GetParam().value);
    wait(1000);
    EXPECT_NE(text(), before);
    EXPECT_EQ(textOfSecond(), text());
    EXPECT_FALSE(hasWritten());
}

}  // namespace
