#include "workbench/toolkit/theme.h"

#include "workbench/core/host_call.h"

#include <algorithm>

namespace workbench {

void Theme::setFont(int element, LOGFONT font) {
    m_fonts[element] = std::move(font);
}

void Theme::changeElement(int element) {
    if (m_suspended > 0)
        return;
    // A reactor may unregister itself or others: each is asked for again before its turn.
    const auto round = m_reactors;
    for (CQrUiThemeModifiedReactor* reactor : round) {
        if (std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end())
            reactor->ThemeModified(element);
    }
}

int Theme::data(int index) const {
    const auto found = m_data.find(index);
    return found == m_data.end() ? 0 : found->second;
}

void* Theme::dataPtr(int index) const {
    const auto found = m_pointers.find(index);
    return found == m_pointers.end() ? nullptr : found->second;
}

void Theme::RegisterReactor(CQrUiThemeModifiedReactor* reactor) {
    const HostCall call("CQrUiTheme::RegisterReactor", {reactor});
    if (call.failed() || reactor == nullptr)
        return;
    if (std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
        m_reactors.push_back(reactor);
}

void Theme::UnregisterReactor(CQrUiThemeModifiedReactor* reactor) {
    const HostCall call("CQrUiTheme::UnregisterReactor", {reactor});
    std::erase(m_reactors, reactor);
}

BOOL Theme::GetFont(int element, LOGFONT& font) const {
    HostCall call("CQrUiTheme::GetFont", {element});
    const auto found = m_fonts.find(element);
    if (call.failed() || found == m_fonts.end())
        return call.returns(0);
    font = found->second;
    return call.returns(1);
}

void Theme::SetData(int index, int value) {
    const HostCall call("CQrUiTheme::SetData", {index, value});
    if (!call.failed())
        m_data[index] = value;
}

void Theme::SetDataPtr(int index, void* pointer) {
    const HostCall call("CQrUiTheme::SetDataPtr", {index, pointer});
    if (call.failed())
        return;
    m_pointers[index] = pointer;
    changeElement(index);
}

void Theme::ResumeModifiedNotifications() {
    const HostCall call("CQrUiTheme::ResumeModifiedNotifications");
    if (m_suspended > 0)
        --m_suspended;
}

}  // namespace workbench
