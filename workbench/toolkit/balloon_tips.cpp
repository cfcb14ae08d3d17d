#include "workbench/toolkit/balloon_tips.h"

#include "workbench/base/text.h"

#include <utility>

namespace workbench {

BalloonTips::BalloonTips(WindowSystem& windows, const TextNotes& notes)
    : m_windows(windows),
      m_notes(notes),
      m_stay(windows, "Balloon", [this] { dismiss(); }) {
    m_windows.setOnFocusMoved([this] { keyboardMoved(); });
}

BalloonTips::~BalloonTips() {
    m_windows.setOnFocusMoved(nullptr);
}

void BalloonTips::show(HWND owner, HWND target, const std::wstring& text) {
    if (m_windows.find(owner) == nullptr)
        return;
    if (m_balloon && m_balloon->owner != owner)
        dismiss();
    const std::wstring before = textOf(owner);
    m_balloon = Balloon{owner, target, m_windows.focus(), text};
    m_stay.start(kLongestMs);
    m_notes.note("balloon", text, m_windows.ownerName(owner));
    m_windows.changes().note(owner, "balloon", toUtf8(before), toUtf8(text));
}

void BalloonTips::hide(HWND owner) {
    if (m_balloon && m_balloon->owner == owner)
        dismiss();
}

void BalloonTips::dismiss() {
    if (!m_balloon)
        return;
    const Balloon gone = *std::exchange(m_balloon, std::nullopt);
    m_stay.stop();
    m_windows.changes().note(gone.owner, "balloon", toUtf8(gone.text), "");
}

void BalloonTips::review() {
    if (!m_balloon)
        return;
    const HWND seen = m_balloon->target == nullptr ? m_balloon->owner : m_balloon->target;
    if (!m_windows.isOnScreen(seen))
        dismiss();
}

std::wstring BalloonTips::textOf(HWND owner) const {
    return m_balloon && m_balloon->owner == owner ? m_balloon->text : std::wstring();
}

HWND BalloonTips::targetOf(HWND owner) const {
    return m_balloon && m_balloon->owner == owner ? m_balloon->target : nullptr;
}

/// A refused entry gives its field the keyboard back with the balloon, before or behind it.
void BalloonTips::keyboardMoved() {
    if (!m_balloon)
        return;
    const HWND now = m_windows.focus();
    if (now == m_balloon->target)
        m_balloon->keyboard = now;
    else if (now != m_balloon->keyboard)
        dismiss();
}

}  // namespace workbench
