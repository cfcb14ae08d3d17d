#include "workbench/loader/host_dictionary.h"

#include "workbench/core/host_call.h"

namespace workbench {

void HostDictionary::lend(std::wstring_view name, VxRxObject& object) {
    m_entries.insert_or_assign(std::wstring(name), Entry{&object, nullptr});
}

void HostDictionary::give(std::wstring_view name, std::unique_ptr<VxRxObject> object) {
    VxRxObject* const given = object.get();
    m_entries.insert_or_assign(std::wstring(name), Entry{given, std::move(object)});
}

void HostDictionary::erase(std::wstring_view name) {
    if (const auto found = m_entries.find(name); found != m_entries.end())
        m_entries.erase(found);
}

void HostDictionary::eraseOwnedIf(const std::function<bool(const VxRxObject&)>& condition) {
    std::erase_if(m_entries, [&condition](const auto& entry) {
        return entry.second.owned != nullptr && condition(*entry.second.object);
    });
}

VxRxObject* HostDictionary::find(std::wstring_view name) const {
    const auto found = m_entries.find(name);
    return found == m_entries.end() ? nullptr : found->second.object;
}

VxRxObject* HostDictionary::at(const wchar_t* name) const {
    HostCall call("VxRxDictionary::at", {name});
    if (call.failed() || name == nullptr)
        return call.returns<VxRxObject*>(nullptr);
    return call.returns(find(name));
}

VxRxObject* HostDictionary::remove(const wchar_t* name) {
    HostCall call("VxRxDictionary::remove", {name});
    if (call.failed() || name == nullptr)
        return call.returns<VxRxObject*>(nullptr);
    const auto found = m_entries.find(name);
    // What the host only lends stays: a caller would delete it.
    if (found == m_entries.end() || found->second.owned == nullptr)
        return call.returns<VxRxObject*>(nullptr);
    VxRxObject* const object = found->second.owned.release();
    m_entries.erase(found);
    return call.returns(object);
}

}  // namespace workbench
