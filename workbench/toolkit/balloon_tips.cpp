#include "workbench/toolkit/balloon_tips.h"

#include "workbench/base/text.h"

namespace workbench {

void BalloonTips::show(HWND owner, HWND target, const std::wstring& text) {
    std::erase_if(m_balloons,
                  [this](const auto& entry) { return m_windows.find(entry.first) == nullptr; });
    if (m_windows.find(owner) == nullptr)
        return;
    const std::wstring before = textOf(owner);
    m_balloons[owner] = {target, text};
    m_notes.note("balloon", text, m_windows.ownerName(owner));
    m_windows.changes().note(owner, "balloon", toUtf8(before), toUtf8(text));
}

void BalloonTips::hide(HWND owner) {
    const std::wstring before = textOf(owner);
    if (m_balloons.erase(owner) != 0)
        m_windows.changes().note(owner, "balloon", toUtf8(before), "");
}

std::wstring BalloonTips::textOf(HWND owner) const {
    const auto found = m_balloons.find(owner);
    return found == m_balloons.end() ? std::wstring() : found->second.text;
}

HWND BalloonTips::targetOf(HWND owner) const {
    const auto found = m_balloons.find(owner);
    return found == m_balloons.end() ? nullptr : found->second.target;
}

}  // namespace workbench
