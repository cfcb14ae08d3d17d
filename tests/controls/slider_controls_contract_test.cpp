#include "tests/support/bench.h"

#include "workbench/gestures/key_gestures.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

/// What every control with a slider and an edit field promises. A further control joins with a
/// record like this one and a line in `Controls`.
struct LockedLayerFade {
    static constexpr const char* kName = "LayerLockTransparencySliderControl";
    static constexpr const wchar_t* kVariable = L"LAYLOCKFADECTL";
    static constexpr int kOtherValue = 35;  // not the variable's at start
};

using Controls = testing::Types<LockedLayerFade>;

constexpr UINT kSliderMoved = 1534;
constexpr UINT kEditEnter = 1735;
constexpr UINT kEditEscape = 1738;

template <class Control>
class SliderContractTest : public support::Bench {
protected:
    void SetUp() override {
        showDashboard();
        m_control = control(Control::kName);
        ASSERT_NE(m_control, nullptr);
        takeSent();
        takeJournal();
    }

    HWND field() { return part(m_control, "edit"); }
    std::wstring text() { return bench().windows().find(field())->text; }
    void focusField() {
        ASSERT_TRUE(workbench::gestures::focusField(bench().toolkit(), field()));
        settle();
        takeJournal();
    }
    /// Offers a key to the control as it passes by on its road; whether it was consumed.
    bool offer(WPARAM key) {
        MSG msg{field(), WM_KEYDOWN, key, 0};
        return CWnd::FromHandle(m_control)->PreTranslateMessage(&msg) != 0;
    }
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        const LRESULT answer = bench().windows().send(m_control, message, wParam, lParam);
        settle();
        return answer;
    }
    bool hasWritten() {
        const std::vector<std::string> made = takeCalls();
        return std::find(made.begin(), made.end(), "vxedSetVar") != made.end();
    }
    bool got(UINT number) {
        const auto numbers = takeMessagesOf(Control::kName);
        return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
    }

    HWND m_control = nullptr;
};

class ControlNames {
public:
    template <class Control>
    static std::string GetName(int /*index*/) {
        return Control::kName;
    }
};

TYPED_TEST_SUITE(SliderContractTest, Controls, ControlNames);

TYPED_TEST(SliderContractTest, EnterInTheFieldIsConsumedAndTold) {
    this->focusField();
    EXPECT_TRUE(this->offer(VK_RETURN));
    EXPECT_TRUE(this->got(kEditEnter));
    EXPECT_TRUE(this->takeSent().empty());
}

TYPED_TEST(SliderContractTest, EscapeInTheFieldIsConsumedAndRestoresTheText) {
    const std::wstring before = this->text();
    this->focusField();
    workbench::gestures::replaceText(this->bench().toolkit(), L"9");
    this->settle();
    ASSERT_NE(this->text(), before);
    this->takeJournal();
    EXPECT_TRUE(this->offer(VK_ESCAPE));
    EXPECT_TRUE(this->got(kEditEscape));
    EXPECT_EQ(this->text(), before);
    EXPECT_FALSE(this->hasWritten());
}

TYPED_TEST(SliderContractTest, KeysElsewhereGoTheOrdinaryWay) {
    workbench::gestures::blur(this->bench().toolkit());
    this->settle();
    this->takeJournal();
    EXPECT_FALSE(this->offer(VK_RETURN));
    EXPECT_FALSE(this->offer(VK_ESCAPE));
    EXPECT_FALSE(this->got(kEditEnter));
}

TYPED_TEST(SliderContractTest, ForeignSliderIsIgnored) {
    const std::wstring before = this->text();
    this->send(kSliderMoved, TypeParam::kOtherValue, reinterpret_cast<LPARAM>(this->m_control));
    this->wait(1000);
    EXPECT_EQ(this->text(), before);
    EXPECT_FALSE(this->hasWritten());
}

TYPED_TEST(SliderContractTest, ForeignFieldIsIgnored) {
    constexpr WPARAM kForeignField = 4711;
    this->focusField();
    workbench::gestures::replaceText(this->bench().toolkit(), L"9");
    this->settle();
    const std::wstring typed = this->text();
    this->takeJournal();
    this->send(kEditEnter, kForeignField);
    this->send(kEditEscape, kForeignField);
    EXPECT_EQ(this->text(), typed);
    EXPECT_FALSE(this->hasWritten());
    this->offer(VK_ESCAPE);
}

TYPED_TEST(SliderContractTest, ChangeFromTheHostIsShownAndNotWrittenBack) {
    const std::wstring before = this->text();
    this->set(TypeParam::kVariable, TypeParam::kOtherValue);
    this->wait(1000);
    EXPECT_NE(this->text(), before);
    EXPECT_FALSE(this->hasWritten());
}

TYPED_TEST(SliderContractTest, ForeignVariableIsIgnored) {
    const std::wstring before = this->text();
    this->set(L"LTSCALE", 3.0);
    EXPECT_EQ(this->text(), before);
    EXPECT_FALSE(this->hasWritten());
}

TYPED_TEST(SliderContractTest, ToolkitsQueriesAreAnsweredOne) {
    EXPECT_EQ(this->send(1567), 1);
    EXPECT_EQ(this->send(1571), 1);
    EXPECT_EQ(this->send(1566), 0) << "nothing of it keeps the focus";
}

TYPED_TEST(SliderContractTest, ReleaseInTheMiddleOfAnEntryIsHarmless) {
    this->focusField();
    workbench::gestures::replaceText(this->bench().toolkit(), L"9");
    EXPECT_EQ(this->notify(kDashboardReleaseControls), 1);
    EXPECT_EQ(this->control(TypeParam::kName), nullptr);
    this->wait(1000);
    EXPECT_TRUE(this->unload());
}

}  // namespace
