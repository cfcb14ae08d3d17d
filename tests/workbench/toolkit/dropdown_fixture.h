#pragma once

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/toolkit/tree_widget.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// A tree that writes down where it was pressed and what was entered into its labels.
class TestTree : public CTreeCtrl {
public:
    const MessageMap& GetMessageMap() const override {
        static constexpr MessageEntry kMessages[] = {
            {WM_SETFOCUS, to<&TestTree::onFocus>},
            {WM_KILLFOCUS, to<&TestTree::onFocusLost>},
            {WM_COMMAND, to<&TestTree::onCommand>, 1, 99},
            {WM_LBUTTONDOWN, to<&TestTree::onPress>},
            {WM_RBUTTONDOWN, to<&TestTree::onRightPress>},
            {WM_REFLECT_BASE + WM_NOTIFY, to<&TestTree::onNotify>},
        };
        static const MessageMap kMap{&CWnd::GetThisMessageMap, kMessages, std::size(kMessages)};
        return kMap;
    }

    std::vector<std::string> log;
    std::vector<std::optional<VxString>> entered;  // nothing: the editing was cancelled
    std::function<void()> onEntered;
    LRESULT takesText = 1;
    CMenu* menu = nullptr;  // not owned; opens on a right press

private:
    LRESULT onFocus(WPARAM, LPARAM) {
        log.emplace_back("focus");
        return Default();
    }
    LRESULT onFocusLost(WPARAM, LPARAM) {
        log.emplace_back("focus lost");
        return Default();
    }
    LRESULT onCommand(WPARAM command, LPARAM) {
        log.push_back("command " + std::to_string(command));
        return 0;
    }
    LRESULT onPress(WPARAM, LPARAM point) {
        Default();
        UINT where = 0;
        const CPoint at{static_cast<std::int16_t>(LOWORD(static_cast<WPARAM>(point))),
                        static_cast<std::int16_t>(HIWORD(static_cast<WPARAM>(point)))};
        const HTREEITEM item = HitTest(at, &where);
        const VxString text = GetItemText(item);
        log.push_back("press " + std::string(text.begin(), text.end()) + " " +
                      std::to_string(where));
        return 0;
    }
    LRESULT onRightPress(WPARAM, LPARAM) {
        Default();
        if (menu != nullptr)
            menu->TrackPopupMenu(0, 0, 0, this);
        return 0;
    }
    LRESULT onNotify(WPARAM, LPARAM record) {
        const auto& info = *reinterpret_cast<const NMTVDISPINFO*>(record);
        if (info.hdr.code != TVN_ENDLABELEDIT)
            return 0;
        entered.push_back(info.text == nullptr ? std::nullopt : std::optional<VxString>(info.text));
        if (onEntered)
            onEntered();
        return takesText;
    }
};

/// A button that draws itself and counts its clicks.
class TestCheck : public CButton {
public:
    const MessageMap& GetMessageMap() const override {
        static constexpr MessageEntry kMessages[] = {
            {WM_MOUSEMOVE, to<&TestCheck::onMove>},
            {WM_MOUSELEAVE, to<&TestCheck::onLeave>},
            {WM_REFLECT_BASE + WM_COMMAND, to<&TestCheck::onClick>},
        };
        static const MessageMap kMap{&CWnd::GetThisMessageMap, kMessages, std::size(kMessages)};
        return kMap;
    }
    void DrawItem(const DRAWITEMSTRUCT* item) override {
        CDC* const context = CDC::FromHandle(item->hDC);
        context->FillSolidRect(item->rcItem, clicks % 2 == 0 ? 0x0000ff : 0x00ff00);
        context->SetTextColor(GetSysColor(COLOR_WINDOWTEXT));
        context->SetBkMode(TRANSPARENT);
        context->DrawText(GetWindowText(), item->rcItem, DT_SINGLELINE | DT_VCENTER);
    }

    int clicks = 0;
    int leaves = 0;

private:
    LRESULT onMove(WPARAM, LPARAM) {
        TRACKMOUSEEVENT request{TME_LEAVE, m_hWnd};
        TrackMouseEvent(&request);
        return Default();
    }
    LRESULT onLeave(WPARAM, LPARAM) {
        ++leaves;
        return 0;
    }
    LRESULT onClick(WPARAM words, LPARAM) {
        if (HIWORD(words) == BN_CLICKED) {
            ++clicks;
            SendMessage(BM_SETCHECK, clicks % 2 == 0 ? 0U : 1U);
            Invalidate();
        }
        return 0;
    }
};

/// A popup with a tree of four items and a check below it:
///
///     All
///       Walls
///         Inner
///       doors
class TestDropdown : public CWnd {
public:
    static constexpr int kWidth = 150;
    static constexpr int kTreeHeight = 90;
    static constexpr int kCheckHeight = 22;

    const MessageMap& GetMessageMap() const override {
        static constexpr MessageEntry kMessages[] = {{WM_CREATE, to<&TestDropdown::onCreate>}};
        static const MessageMap kMap{&CWnd::GetThisMessageMap, kMessages, std::size(kMessages)};
        return kMap;
    }
    bool open(CWnd& frame, CPoint corner) {
        const CRect rect{corner.x, corner.y, corner.x + kWidth,
                         corner.y + kTreeHeight + kCheckHeight};
        if (CreateEx(0, L"Static", nullptr, WS_POPUP | WS_BORDER, rect, &frame, 0) == 0)
            return false;
        ShowWindow(SW_SHOW);
        tree.SetFocus();
        return true;
    }

    TestTree tree;
    TestCheck check;
    HTREEITEM all = nullptr;
    HTREEITEM walls = nullptr;
    HTREEITEM inner = nullptr;
    HTREEITEM doors = nullptr;

private:
    LRESULT onCreate(WPARAM, LPARAM) {
        constexpr DWORD kTreeStyle = WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES |
                                     TVS_LINESATROOT | TVS_EDITLABELS | TVS_FULLROWSELECT;
        tree.Create(kTreeStyle, {0, 0, kWidth, kTreeHeight}, this, 10001);
        check.Create(L"Invert", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW,
                     {0, kTreeHeight, kWidth, kTreeHeight + kCheckHeight}, this, 10002);
        all = tree.InsertItem(L"All", 0, 0, TVI_ROOT, TVI_LAST);
        walls = tree.InsertItem(L"Walls", 1, 2, all, TVI_LAST);
        inner = tree.InsertItem(L"Inner", 1, 2, walls, TVI_LAST);
        doors = tree.InsertItem(L"doors", 1, 2, all, TVI_LAST);
        tree.Expand(all, TVE_EXPAND);
        return Default();
    }
};

/// A list's field that opens a dropdown of its own in place of a list, and closes it again.
class DropdownCombo : public CQrUiComboCtrl {
public:
    const MessageMap& GetMessageMap() const override {
        static constexpr MessageEntry kMessages[] = {
            {WM_LBUTTONDOWN, to<&DropdownCombo::onPress>},
            {WM_LBUTTONDBLCLK, to<&DropdownCombo::onPress>},
        };
        static const MessageMap kMap{&CWnd::GetThisMessageMap, kMessages, std::size(kMessages)};
        return kMap;
    }

    std::unique_ptr<TestDropdown> dropdown;
    std::function<void(TestDropdown&)> onOpened;

private:
    LRESULT onPress(WPARAM, LPARAM) {
        if (dropdown != nullptr && dropdown->IsWindowVisible() != 0) {
            dropdown->ShowWindow(SW_HIDE);
            return 0;
        }
        dropdown = std::make_unique<TestDropdown>();
        const CRect rect = GetWindowRect();
        dropdown->open(*AfxGetMainWnd(), {rect.left, rect.bottom});
        if (onOpened)
            onOpened(*dropdown);
        return 0;
    }
};

/// A control "FilterControl" that drops a tree down.
class DropdownTest : public ToolkitTest {
protected:
    DropdownTest() {
        m_combo.Create(WS_CHILD | WS_VISIBLE, {0, 0, 120, 300}, m_toolPanel, 7);
        windows().setName(m_combo.m_hWnd, "FilterControl");
        journal().take();
    }

    /// A click on the field, which opens the dropdown or closes it.
    void clickField() {
        toolkit().mouse().press(m_combo.m_hWnd, {5, 5});
        toolkit().mouse().release(m_combo.m_hWnd, {5, 5});
    }
    TestDropdown& openDropdown() {
        clickField();
        return *m_combo.dropdown;
    }
    TreeWidget& widget() { return *windows().widgetOf<TreeWidget>(&m_combo.dropdown->tree); }
    void pressKey(WPARAM key) { windows().input(nullptr, WM_KEYDOWN, key, 0); }
    void type(std::wstring_view text) {
        for (const wchar_t letter : text)
            windows().input(nullptr, 258, static_cast<WPARAM>(letter), 0);
    }
    void click(CWnd& window, CPoint point) {
        toolkit().mouse().press(window.m_hWnd, point);
        toolkit().mouse().release(window.m_hWnd, point);
    }
    static CPoint middle(const CRect& rect) {
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }

    DropdownCombo m_combo;
};

}  // namespace workbench
