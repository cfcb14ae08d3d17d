#include "workbench/loader/resource_search.h"

#include "workbench/base/text.h"

#include <algorithm>

namespace workbench {

bool ResourceSearch::attach(AFX_EXTENSION_MODULE& record, HINSTANCE library) {
    if (record.attached)
        return false;
    record = {library, m_current, true};
    m_chain.push_back(&record);
    return true;
}

void ResourceSearch::detach(AFX_EXTENSION_MODULE& record) {
    std::erase(m_chain, &record);
    record.attached = false;
}

std::optional<std::string_view> ResourceSearch::find(UINT number) {
    std::optional<std::string_view> found = m_libraries.resources(m_current).findString(number);
    for (auto record = m_chain.rbegin(); !found && record != m_chain.rend(); ++record) {
        const HINSTANCE resources = (*record)->resourceHandle;
        found = m_libraries.resources(resources == nullptr ? (*record)->library : resources)
                    .findString(number);
    }
    return found;
}

std::optional<std::wstring> ResourceSearch::string(UINT number) {
    const std::optional<std::string_view> found = find(number);
    if (!found)
        return std::nullopt;
    std::wstring text = toWide(*found);
    m_trace.remember(static_cast<int>(number), text);
    return text;
}

}  // namespace workbench
