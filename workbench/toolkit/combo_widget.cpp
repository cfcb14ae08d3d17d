#include "workbench/toolkit/combo_widget.h"

#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/key_road.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <utility>

namespace workbench {

namespace {

Value textOf(const QRUI_COMBO_CTRL_ITEM* entry) {
    return entry == nullptr ? Value() : Value(toUtf8(entry->text));
}

}  // namespace

ComboWidget::~ComboWidget() {
    releaseImages();
}

void ComboWidget::releaseImages() {
    for (const auto& entry : m_entries)
        m_toolkit.pictures().release(entry->image);
}

void ComboWidget::tellParent(HWND combo, UINT notification) {
    WindowSystem& windows = m_toolkit.windows();
    const Window* const window = windows.find(combo);
    if (window == nullptr || window->parent == nullptr)
        return;
    const UINT words = MAKELONG(static_cast<UINT>(window->id), notification);
    windows.send(window->parent, WM_COMMAND, words, reinterpret_cast<LPARAM>(combo));
}

int ComboWidget::add(Window& window, std::unique_ptr<QRUI_COMBO_CTRL_ITEM> entry) {
    const int before = count();
    m_entries.push_back(std::move(entry));
    m_toolkit.windows().changes().note(window.handle, "items", before, count());
    return before;
}

bool ComboWidget::remove(Window& window, int index) {
    const QRUI_COMBO_CTRL_ITEM* const gone = entry(index);
    if (gone == nullptr)
        return false;
    const int before = count();
    if (index == m_selected)
        select(window, -1);
    m_toolkit.pictures().release(gone->image);
    m_entries.erase(m_entries.begin() + index);
    if (m_selected > index)
        --m_selected;
    m_highlighted = m_selected;
    m_toolkit.windows().changes().note(window.handle, "items", before, count());
    return true;
}

void ComboWidget::clear(Window& window) {
    const int before = count();
    releaseImages();
    m_entries.clear();
    m_selected = -1;
    m_highlighted = -1;
    m_toolkit.windows().changes().note(window.handle, "items", before, 0);
}

QRUI_COMBO_CTRL_ITEM* ComboWidget::entry(int index) const {
    return index >= 0 && index < count() ? m_entries[static_cast<std::size_t>(index)].get()
                                         : nullptr;
}

void ComboWidget::select(Window& window, int index) {
    const Value before = textOf(entry(m_selected));
    m_selected = entry(index) == nullptr ? -1 : index;
    m_highlighted = m_selected;
    m_toolkit.windows().changes().note(window.handle, "selected", before,
                                       textOf(entry(m_selected)));
}

bool ComboWidget::open(Window& window) {
    const Turn turn;
    const HWND combo = window.handle;
    if (m_open || !mayTakeFocus(m_toolkit, combo) || m_toolkit.windows().find(combo) == nullptr)
        return false;
    m_focusBefore = m_toolkit.windows().focus();
    m_open = true;
    m_toolkit.windows().setFocus(combo);
    tellParent(combo, CBN_DROPDOWN);
    if (m_toolkit.windows().find(combo) == nullptr)
        return true;
    m_highlighted = m_selected;
    m_toolkit.windows().invalidate(combo);
    return true;
}

bool ComboWidget::canBeChosen(int index) const {
    const QRUI_COMBO_CTRL_ITEM* const chosen = entry(index);
    return chosen != nullptr && chosen->separator == 0;
}

bool ComboWidget::choose(Window& window, int index) {
    const Turn turn;
    if (!canBeChosen(index))
        return false;
    const HWND combo = window.handle;
    const bool another = index != m_selected;
    select(window, index);
    tellParent(combo, CBN_SELENDOK);
    if (Window* const still = m_toolkit.windows().find(combo); still != nullptr && m_open)
        close(*still);
    if (another && m_toolkit.windows().find(combo) != nullptr)
        tellParent(combo, CBN_SELCHANGE);
    return true;
}

bool ComboWidget::close(Window& window) {
    const Turn turn;
    if (!m_open)
        return false;
    const HWND combo = window.handle;
    const HWND focusBefore = std::exchange(m_focusBefore, nullptr);
    m_open = false;
    m_toolkit.windows().invalidate(combo);
    tellParent(combo, CBN_CLOSEUP);
    giveFocusBack(m_toolkit, combo, focusBefore);
    return true;
}

bool ComboWidget::handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                         LRESULT& /*answer*/) {
    switch (message) {
    case kLeftButtonDown:
        m_open ? close(window) : open(window);
        return true;
    case CB_RESETCONTENT:
        clear(window);
        return true;
    case WM_QRUI_THEME_CHANGED:
        takeFontOf(window, lParam);
        return true;
    case WM_KEYDOWN:
        if (!key(window, wParam))
            passKeyOn(m_toolkit, wParam, lParam);
        return true;
    default:
        return false;
    }
}

/// The next entry that can be chosen, from an index on; nothing at the end.
std::optional<int> ComboWidget::nextFrom(int index, int step) const {
    for (int next = index; next >= 0 && next < count(); next += step) {
        if (canBeChosen(next))
            return next;
    }
    return {};
}

/// Moves or chooses by a key. False for a key that means nothing here.
bool ComboWidget::key(Window& window, WPARAM key) {
    if (m_open && key == VK_RETURN)
        return canBeChosen(m_highlighted) ? choose(window, m_highlighted) : close(window);
    if (m_open && key == VK_ESCAPE)
        return close(window);
    const int from = m_open ? m_highlighted : m_selected;
    std::optional<int> next;
    if (key == kKeyDown)
        next = nextFrom(from + 1, 1);
    else if (key == kKeyUp)
        next = nextFrom(from - 1, -1);
    else if (key == kKeyHome)
        next = nextFrom(0, 1);
    else if (key == kKeyEnd)
        next = nextFrom(count() - 1, -1);
    else
        return false;
    m_toolkit.windows().invalidate(window.handle);
    if (next && m_open)
        m_highlighted = *next;
    else if (next)
        choose(window, *next);
    return true;
}

std::string ComboWidget::describe(const Window& /*window*/) const {
    const QRUI_COMBO_CTRL_ITEM* const shown = entry(m_selected);
    const std::string text = shown == nullptr ? "nothing" : '"' + toUtf8(shown->text) + '"';
    return text + " of " + std::to_string(count()) + (m_open ? " open" : "");
}

int ComboWidget::naturalHeight(const Window& /*window*/, int /*width*/) const {
    return kHeight;
}

}  // namespace workbench
