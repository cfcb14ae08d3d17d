#pragma once

#include "workbench/loader/registered_object.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace workbench {

/// A dictionary of the host, of borrowed and of owned objects. Names are exact.
class HostDictionary final : public RegisteredObject<VxRxDictionary> {
public:
    HostDictionary() : RegisteredObject(L"VxRxDictionary") {}

    /// Enters an object that the dictionary does not own, in place of an earlier one.
    void lend(std::wstring_view name, VxRxObject& object);
    /// Enters an object that goes with the dictionary, or with whoever takes it out.
    void give(std::wstring_view name, std::unique_ptr<VxRxObject> object);
    /// Ends the entry of a name, and its object if it is owned.
    void erase(std::wstring_view name);
    /// Ends the owned entries whose object meets a condition.
    void eraseOwnedIf(const std::function<bool(const VxRxObject&)>& condition);
    /// The object of a name; null for none.
    VxRxObject* find(std::wstring_view name) const;

    // VxRxDictionary:
    VxRxObject* at(const wchar_t* name) const override;
    VxRxObject* remove(const wchar_t* name) override;

private:
    struct Entry {
        VxRxObject* object;                 // never null
        std::unique_ptr<VxRxObject> owned;  // null: the object is borrowed
    };
    std::map<std::wstring, Entry, std::less<>> m_entries;
};

}  // namespace workbench
