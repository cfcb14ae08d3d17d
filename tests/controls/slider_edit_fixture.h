#pragma once

#include "controls/edit_messages.h"
#include "controls/row_items.h"
#include "controls/slider_edit_panel_ctrl.h"
#include "controls/slider_edit_panel_ctrl2.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/call_lines.h"
#include "tests/support/first_rects.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/window/frame.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

inline constexpr int kIconWidth = 22;      // pixels, the toolkit's at 16-pixel icons
inline constexpr int kSeparatorWidth = 6;  // pixels

/// What stands in the row. In the last three the edit field is there, but is no item of it; the last
/// has no slider.
enum class Row {
    Whole,
    NoSeparator,
    OneItem,
    OneItemAndField,
    TwoSeparatorsAndField,
    FieldWithoutSlider
};

inline bool hasIcon(Row row) {
    return row == Row::Whole || row == Row::NoSeparator;
}

/// A control of the test's own: its row, and a record of what its edit fields told it.
template <class Base>
class TestControl final : public Base {
public:
    explicit TestControl(Row row) : Base(nullptr), m_row(row) {}

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_CREATE)
            return create(reinterpret_cast<const CREATESTRUCT*>(lParam));
        if (message == WM_DA_EDIT_ENTER || message == WM_DA_EDIT_ESCAPE) {
            told.push_back({message, wParam, lParam});
            return 0;
        }
        return Base::WindowProc(message, wParam, lParam);
    }

    struct Told {
        UINT message;
        WPARAM id;
        LPARAM window;
        friend bool operator==(const Told&, const Told&) = default;
    };
    std::vector<Told> told;
    CQrUiProgSliderCtrl& slider() { return this->m_slider; }
    CQrUiInputEditCtrl& edit() { return this->m_edit; }

private:
    void sliderMoved(int /*position*/) override {}
    void commitEdit(CQrUiInputEditCtrl& /*field*/) override {}
    void restoreEdit(CQrUiInputEditCtrl& /*field*/) override {}

    LRESULT create(const CREATESTRUCT* creation) {
        if (this->OnCreate(creation) == -1)
            return -1;
        if (m_row == Row::FieldWithoutSlider) {
            this->createEdit(this->m_edit, kFirstEditId);
            return 0;
        }
        this->m_slider.Create(WS_CHILD | WS_VISIBLE, {0, 0, 10, 10}, this, 10001, 2);
        if (hasIcon(m_row))
            addIconItem(this, L"TPB_TEST", L"RCDATA_NONE");
        addControlItem(this, this->m_slider.m_hWnd);
        if (m_row == Row::Whole)
            this->CreateEditPart();
        if (m_row == Row::NoSeparator) {
            this->createEdit(this->m_edit, kFirstEditId);
            addControlItem(this, this->m_edit.m_hWnd);
        }
        if (m_row == Row::OneItemAndField || m_row == Row::TwoSeparatorsAndField)
            this->createEdit(this->m_edit, kFirstEditId);
        if (m_row == Row::TwoSeparatorsAndField) {
            addSeparatorItem(this);
            addSeparatorItem(this);
        }
        return 0;
    }

    Row m_row;
};

using OneField = TestControl<CVxDaSliderEditPanelCtrl>;
using TwoFields = TestControl<CVxDaSliderEditPanelCtrl2>;

/// Test fixture: controls of the test's own on the main frame.
class SliderEditTest : public PaletteTest {
protected:
    void SetUp() override { load(); }

    template <class Control>
    void create(Control& control, int width) {
        ASSERT_TRUE(
            control.Create(WS_CHILD | WS_VISIBLE, {0, 0, width, 60}, AfxGetMainWnd(), 900, 0));
        control.UpdateLayout(1);
    }
    static int widthOf(const CWnd& window) { return window.GetWindowRect().Width(); }
    static int leftOf(const CWnd& window) {
        const CRect rect = window.GetWindowRect();
        return window.GetParent()->ScreenToClient({rect.left, rect.top}).x;
    }
    static CRect rectOf(const CWnd& window) {
        return workbench::Workbench::current().windows().find(window.m_hWnd)->rect;
    }
    template <class Control>
    BOOL press(Control& control, WPARAM key, UINT message = WM_KEYDOWN) {
        MSG msg{control.m_hWnd, message, key, 0};
        return control.PreTranslateMessage(&msg);
    }
    /// The host calls of a name since the journal was forgotten.
    std::vector<std::string> calls(std::string_view name) {
        return support::callLines(bench().journal().records(), {name});
    }
    /// Lays a control out that stands as it should, and tells how often it was asked to be painted.
    template <class Control>
    std::ptrdiff_t repaintsOfLayout(Control& control, BOOL invalidate) {
        std::vector<HWND> touched;
        bench().windows().changes().setObserver(
            [&touched](HWND window) { touched.push_back(window); });
        EXPECT_EQ(control.UpdateLayout(invalidate), 1);
        bench().windows().changes().setObserver(nullptr);
        return std::count(touched.begin(), touched.end(), control.m_hWnd);
    }
};
