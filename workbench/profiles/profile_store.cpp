#include "workbench/profiles/profile_store.h"

#include "workbench/base/input_error.h"
#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/profiles/profile_file.h"

#include <stdlib.h>

#include <cerrno>
#include <optional>
#include <system_error>

namespace workbench {

namespace {

namespace fs = std::filesystem;

fs::path makeTemporaryFolder() {
    std::string folder = (fs::temp_directory_path() / "profiles-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr)
        throw InputError(folder,
                         "the folder cannot be made: " + std::generic_category().message(errno));
    return folder;
}

fs::path makeFolder(const fs::path& folder) {
    std::error_code failure;
    fs::create_directories(folder, failure);
    if (failure)
        throw InputError(folder.string(),
                         "the profile folder cannot be made: " + failure.message());
    return folder;
}

}  // namespace

ProfileStore::ProfileStore(const fs::path& folder, Journal& journal)
    : m_journal(journal),
      m_folder(folder.empty() ? makeTemporaryFolder() : makeFolder(folder)),
      m_isTemporary(folder.empty()) {
    m_current = &open(kFirstProfile);
}

ProfileStore::~ProfileStore() {
    std::error_code ignored;
    if (m_isTemporary)
        fs::remove_all(m_folder, ignored);
}

void ProfileStore::switchTo(std::string_view name) {
    if (name == currentName())
        return;
    m_current = &open(name);
    const std::wstring wideName = m_current->wideName();
    m_reactors.notify([&wideName](VxApProfileManagerReactor& reactor) {
        reactor.currentProfileChanged(wideName.c_str());
    });
}

void ProfileStore::complain(const std::string& what) {
    std::string complaint = m_current->file().string() + what;
    m_journal.add("profile", {{"event", "damaged"}, {"text", complaint}});
    m_complaints.push_back(std::move(complaint));
}

void ProfileStore::save() {
    // A reactor may switch profiles; what is saved is the one that it was told of.
    const Profile& saved = *m_current;
    const std::wstring wideName = saved.wideName();
    m_reactors.notify([&wideName](VxApProfileManagerReactor& reactor) {
        reactor.currentProfileWillBeSaved(wideName.c_str());
    });
    saved.save();
}

Profile* ProfileStore::find(std::string_view name) {
    if (equalNoCase(currentName(), name))
        return m_current;
    for (const auto& [known, profile] : m_open) {
        if (equalNoCase(known, name))
            return profile.get();
    }
    const std::optional<std::string> onDisk = findOnDisk(name);
    try {
        return onDisk ? &open(*onDisk) : nullptr;
    } catch (const InputError& error) {
        m_complaints.emplace_back(error.what());
        return nullptr;
    }
}

Value ProfileStore::value(std::string_view variable) const {
    return m_current->variable(variable);
}

void ProfileStore::setValue(std::string_view variable, const Value& value) {
    m_current->setVariable(variable, value);
}

Value ProfileStore::registryValue(std::string_view path) const {
    const std::optional<RegistryPath> parsed = parseRegistryPath(path);
    return parsed ? m_current->registryValue(*parsed) : Value();
}

void ProfileStore::addReactor(VxApProfileManagerReactor* reactor) {
    const HostCall call("VxApProfileManager::addReactor", {reactor});
    if (!call.failed())
        m_reactors.add(reactor);
}

void ProfileStore::removeReactor(VxApProfileManagerReactor* reactor) {
    const HostCall call("VxApProfileManager::removeReactor", {reactor});
    if (!call.failed())
        m_reactors.remove(reactor);
}

VxApProfileStorage* ProfileStore::profileStorage(const wchar_t* name, bool create) {
    HostCall call("VxApProfileManager::profileStorage", {name, create});
    if (call.failed() || name == nullptr)
        return call.returns<VxApProfileStorage*>(nullptr);
    const std::string profile = toUtf8(name);
    try {
        const bool isThere = findOpen(profile) != nullptr || fs::exists(fileOf(profile));
        if (!isThere && !create)
            return call.returns<VxApProfileStorage*>(nullptr);
        return call.returns<VxApProfileStorage*>(&open(profile));
    } catch (const InputError& error) {
        m_complaints.emplace_back(error.what());
        return call.returns<VxApProfileStorage*>(nullptr);
    }
}

fs::path ProfileStore::fileOf(std::string_view name) const {
    const std::optional<std::string> file = profileFileName(name);
    if (!file)
        throw InputError(m_folder.string(),
                         "\"" + std::string(name) + "\" cannot be the name of a profile");
    return m_folder / *file;
}

Profile* ProfileStore::findOpen(std::string_view name) const {
    const auto found = m_open.find(name);
    return found == m_open.end() ? nullptr : found->second.get();
}

std::optional<std::string> ProfileStore::findOnDisk(std::string_view name) const {
    std::error_code ignored;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder, ignored)) {
        std::string profile = entry.path().stem().string();
        const bool isProfile = profileFileName(profile) == entry.path().filename().string();
        if (isProfile && equalNoCase(std::string_view(profile), name))
            return profile;
    }
    return {};
}

Profile& ProfileStore::open(std::string_view name) {
    if (Profile* const known = findOpen(name))
        return *known;
    std::string complaint;
    auto profile = std::make_unique<Profile>(std::string(name), fileOf(name), complaint);
    if (!complaint.empty()) {
        m_journal.add("profile", {{"event", "damaged"}, {"text", complaint}});
        m_complaints.push_back(std::move(complaint));
    }
    return *m_open.emplace(profile->name(), std::move(profile)).first->second;
}

}  // namespace workbench
