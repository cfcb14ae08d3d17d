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

/// What a function finds in the current library, or else in the attached ones, the last one first.
template <class Find>
auto ResourceSearch::findInAll(Find find) {
    auto found = find(m_libraries.resources(m_current));
    for (auto record = m_chain.rbegin(); !found && record != m_chain.rend(); ++record) {
        const HINSTANCE resources = (*record)->resourceHandle;
        found = find(m_libraries.resources(resources == nullptr ? (*record)->library : resources));
    }
    return found;
}

std::optional<std::wstring> ResourceSearch::string(UINT number) {
    const auto found =
        findInAll([number](const ResourceLibrary& library) { return library.findString(number); });
    if (!found)
        return std::nullopt;
    std::wstring text = toWide(*found);
    m_trace.remember(static_cast<int>(number), text);
    return text;
}

std::optional<PictureBytes> ResourceSearch::bitmap(UINT number) {
    constexpr std::uint32_t kHeight = 16;  // pixels
    const std::string key = "#" + std::to_string(number);
    return findInAll(
        [&key](const ResourceLibrary& library) { return library.findPicture(key, kHeight); });
}

}  // namespace workbench
