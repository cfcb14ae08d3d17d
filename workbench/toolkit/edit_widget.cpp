#include "workbench/toolkit/edit_widget.h"

#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/key_road.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr wchar_t kFirstPrintable = L' ';

}  // namespace

const LineEditor& EditWidget::editor(const Window& window) {
    if (m_editor.text() != window.text)
        m_editor.setText(window.text);
    return m_editor;
}

void EditWidget::selectAll(Window& window) {
    editor(window);
    m_editor.selectAll();
    m_toolkit.windows().invalidate(window.handle);
}

/// From one place to another, both counted from 0, -1 the end; from -1 nothing is selected.
void EditWidget::select(Window& window, int first, int last) {
    constexpr int kEnd = -1;
    const std::size_t end = editor(window).text().size();
    const auto placeOf = [end](int place) {
        return place < 0 ? end : static_cast<std::size_t>(place);
    };
    if (first == kEnd) {
        m_editor.moveTo(m_editor.caret(), false);
    } else {
        m_editor.moveTo(placeOf(first), false);
        m_editor.moveTo(placeOf(last), true);
    }
    m_toolkit.windows().invalidate(window.handle);
}

bool EditWidget::handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                        LRESULT& /*answer*/) {
    switch (message) {
    case kLeftButtonDown:
        press(window, unpackPoint(lParam));
        return true;
    case kLeftButtonDoubleClick:
        selectAll(window);
        return true;
    case EM_SETSEL:
        select(window, static_cast<int>(wParam), static_cast<int>(lParam));
        return true;
    case EM_SCROLLCARET:
        return true;
    case WM_QRUI_THEME_CHANGED:
        takeFontOf(window, lParam);
        return true;
    case kCharMessage:
        character(window, static_cast<wchar_t>(wParam));
        return true;
    case WM_KEYDOWN:
        if (!key(window, wParam))
            passKeyOn(m_toolkit, wParam, lParam);
        return true;
    default:
        return false;
    }
}

int EditWidget::naturalHeight(const Window& /*window*/, int /*width*/) const {
    return kHeight;
}

std::size_t EditWidget::scrolled(const Window& window) {
    const int room = std::max(1, (window.rect.Width() - 2 * kTextMargin) / kCharacterWidth);
    const LineEditor& line = editor(window);
    const std::size_t caret = line.caret();
    // A text that is selected as a whole is read from its start before it is typed over.
    const bool isWhole = line.anchor() == 0 && caret == line.text().size();
    const bool isTyping = m_toolkit.windows().focus() == window.handle && !isWhole;
    const auto shown = static_cast<std::size_t>(room);
    if (isTyping)
        return caret > shown ? caret - shown : 0;
    // A padded text gives up blanks in front rather than what they push to the right.
    const std::wstring& text = line.text();
    const std::size_t blanks = std::min(text.find_first_not_of(L' '), text.size());
    return text.size() > shown ? std::min(blanks, text.size() - shown) : 0;
}

void EditWidget::press(Window& window, CPoint point) {
    const std::size_t first = scrolled(window);
    const int along = std::max(0, point.x - kTextMargin);
    const int place = (along + kCharacterWidth / 2) / kCharacterWidth;
    m_editor.moveTo(first + static_cast<std::size_t>(place), false);
    m_toolkit.windows().invalidate(window.handle);
    takeFocus(m_toolkit, window.handle);
}

void EditWidget::character(Window& window, wchar_t character) {
    editor(window);
    if (character == kCharSelectAll)
        selectAll(window);
    else if (character == kCharBackspace)
        m_editor.backspace();
    else if (character >= kFirstPrintable)
        m_editor.insert(character);
    showText(window);
}

/// Edits by a key. False for a key that means nothing here.
bool EditWidget::key(Window& window, WPARAM key) {
    WindowSystem& windows = m_toolkit.windows();
    const bool extend = windows.keys().isHeld(VK_SHIFT);
    editor(window);
    windows.invalidate(window.handle);
    switch (key) {
    case kKeyLeft:
        m_editor.moveLeft(extend);
        return true;
    case kKeyRight:
        m_editor.moveRight(extend);
        return true;
    case kKeyHome:
        m_editor.moveTo(0, extend);
        return true;
    case kKeyEnd:
        m_editor.moveTo(window.text.size(), extend);
        return true;
    case kKeyDelete:
        m_editor.erase();
        showText(window);
        return true;
    default:
        return false;
    }
}

void EditWidget::showText(Window& window) {
    if (window.text == m_editor.text())
        return;
    m_typed = m_editor.text();
    m_toolkit.windows().state().setText(window.handle, m_editor.text());
}

}  // namespace workbench
