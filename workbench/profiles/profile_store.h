#pragma once

#include "workbench/core/journal.h"
#include "workbench/drawing/database/reactor_list.h"
#include "workbench/editor/profile_values.h"
#include "workbench/profiles/profile.h"

#include <hostapi/zorq/profiles.h>

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// The user's profiles, one of which is the current one: XML files in a folder, one a profile.
class ProfileStore final : public VxApProfileManager, public ProfileValues {
public:
    /// Name of the profile that is current at the start.
    static constexpr const char* kFirstProfile = "Default";

    /// An empty folder name stands for a temporary folder that goes with the store. Makes a folder
    /// that is missing. Throws `InputError` if that is not possible or the first profile cannot be
    /// read; a damaged profile is set aside with a complaint instead.
    ProfileStore(const std::filesystem::path& folder, Journal& journal);
    ~ProfileStore() override;

    const std::filesystem::path& folder() const { return m_folder; }
    const std::string& currentName() const { return m_current->name(); }
    /// The current profile. Good until another one is.
    Profile& current() const { return *m_current; }

    /// Tells a reactor of the host's own until `endWatch`; it must live until then.
    void watch(VxApProfileManagerReactor& reactor) { m_reactors.add(&reactor); }
    void endWatch(VxApProfileManagerReactor& reactor) { m_reactors.remove(&reactor); }

    /// Makes a profile the current one, a fresh one if there is none of this name, and tells the
    /// reactors; the old one is not saved. Switching to the current one does nothing. Throws
    /// `InputError` for a name that cannot be a file's, or a file that cannot be read; the current
    /// profile stays then.
    void switchTo(std::string_view name);
    /// Tells the reactors that the current profile will be saved, then writes its file. Throws
    /// `InputError` if it cannot be written; the old file is untouched then.
    void save();

    /// The profile of a name, without regard to case; its file is read if it wasn't yet. Null if there is
    /// none, or with a complaint if it can't be read.
    Profile* find(std::string_view name);

    /// Says that something kept in the current profile can't be taken.
    void complain(const std::string& what);
    /// What was said about damaged files, in order.
    const std::vector<std::string>& complaints() const { return m_complaints; }

    // ProfileValues:
    std::string currentProfile() const override { return currentName(); }
    Value value(std::string_view variable) const override;
    void setValue(std::string_view variable, const Value& value) override;
    Value registryValue(std::string_view path) const override;

    // VxApProfileManager:
    void addReactor(VxApProfileManagerReactor* reactor) override;
    void removeReactor(VxApProfileManagerReactor* reactor) override;
    VxApProfileStorage* profileStorage(const wchar_t* name, bool create) override;

private:
    std::filesystem::path fileOf(std::string_view name) const;
    Profile* findOpen(std::string_view name) const;
    /// The exact name of a profile's file in the folder; nothing if there is none.
    std::optional<std::string> findOnDisk(std::string_view name) const;
    Profile& open(std::string_view name);

    Journal& m_journal;
    std::filesystem::path m_folder;
    bool m_isTemporary;
    std::map<std::string, std::unique_ptr<Profile>, std::less<>> m_open;
    Profile* m_current = nullptr;  // one of the open ones
    drawing::ReactorList<VxApProfileManagerReactor> m_reactors;
    std::vector<std::string> m_complaints;
};

}  // namespace workbench
