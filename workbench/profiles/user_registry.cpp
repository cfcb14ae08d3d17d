#include "workbench/profiles/user_registry.h"

#include "workbench/base/text.h"
#include "workbench/profiles/profile_store.h"

#include <algorithm>
#include <string>

namespace workbench {

namespace {

/// The path of "Profiles".
const RegistryPath& profilesPath() {
    static const RegistryPath kPath =
        *parseRegistryPath(toUtf8(UserRegistry::kProductKey) + "\\Profiles");
    return kPath;
}

bool isSameName(const std::string& left, const std::string& right) {
    return equalNoCase(std::string_view(left), std::string_view(right));
}

}  // namespace

HKEY UserRegistry::open(HKEY root, std::wstring_view path) {
    const std::optional<RegistryPath> parsed = parseRegistryPath(toUtf8(path));
    if (root != HKEY_CURRENT_USER || !parsed || !find(*parsed))
        return nullptr;
    m_open.emplace(++m_lastKey, *parsed);
    return reinterpret_cast<HKEY>(m_lastKey);
}

Value UserRegistry::value(HKEY key, std::wstring_view name) const {
    const auto open = m_open.find(numberOf(key));
    const std::optional<Place> place = open == m_open.end() ? std::nullopt : find(open->second);
    if (!place)
        return {};
    if (place->isProfiles)
        return name.empty() ? Value(m_profiles.currentName()) : Value();
    if (place->profile == nullptr)
        return {};
    return readRegistryValue(place->profile->findRegistryKey(place->below), toUtf8(name));
}

std::optional<UserRegistry::Place> UserRegistry::find(const RegistryPath& path) const {
    const RegistryPath& profiles = profilesPath();
    const std::size_t shared = std::min(path.size(), profiles.size());
    if (!std::equal(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(shared),
                    profiles.begin(), isSameName))
        return {};
    if (path.size() < profiles.size())
        return Place{};
    if (path.size() == profiles.size())
        return Place{true, nullptr, {}};
    return findInProfiles(path, profiles.size());
}

std::optional<UserRegistry::Place> UserRegistry::findInProfiles(const RegistryPath& path,
                                                                std::size_t used) const {
    Profile* const profile = m_profiles.find(path[used]);
    RegistryPath below(path.begin() + static_cast<std::ptrdiff_t>(used) + 1, path.end());
    if (profile == nullptr || (!below.empty() && !profile->findRegistryKey(below)))
        return {};
    return Place{false, profile, std::move(below)};
}

}  // namespace workbench
