#pragma once

#include "workbench/base/value.h"
#include "workbench/profiles/registry_element.h"

#include <hostapi/qrui18/registry_access.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string_view>

namespace workbench {

class Profile;
class ProfileStore;

/// What the registry holds of the host's user, a view of the profiles: below the product's key
/// "Profiles", whose default value is the current profile's name, a key for each profile with what it
/// keeps. Keys and values are found without regard to case.
class UserRegistry {
public:
    /// The path of the product's key below `HKEY_CURRENT_USER`.
    static constexpr const wchar_t* kProductKey = L"Software\\Zorq\\ZORQ\\R18.0";

    /// The profiles must outlive it.
    explicit UserRegistry(ProfileStore& profiles) : m_profiles(profiles) {}

    /// Opens a key for reading; null if there is none. It stays open without its key: then nothing is
    /// found in it.
    HKEY open(HKEY root, std::wstring_view path);
    void close(HKEY key) { m_open.erase(numberOf(key)); }
    /// A value of an open key, the default value for an empty name; nil if there is none.
    Value value(HKEY key, std::wstring_view name) const;
    /// How many keys are open.
    std::size_t openCount() const { return m_open.size(); }

private:
    /// What a path leads to: the product's key and those above it, or "Profiles", or a profile.
    struct Place {
        bool isProfiles = false;
        Profile* profile = nullptr;  // not owned; null: not in a profile
        RegistryPath below;          // the key within the profile
    };

    static std::uintptr_t numberOf(HKEY key) { return reinterpret_cast<std::uintptr_t>(key); }
    std::optional<Place> find(const RegistryPath& path) const;
    std::optional<Place> findInProfiles(const RegistryPath& path, std::size_t used) const;

    ProfileStore& m_profiles;
    std::map<std::uintptr_t, RegistryPath> m_open;
    std::uintptr_t m_lastKey = 0;
};

}  // namespace workbench
