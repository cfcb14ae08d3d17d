#pragma once

#include "workbench/base/value.h"
#include "workbench/profiles/registry_element.h"
#include "workbench/xml/xml_tree.h"

#include <hostapi/zorq/profiles.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace workbench {

/// One profile while the host runs: the tree that modules store in, the kept variables, and its part
/// of the registry. On disk it is as old as its last `save`.
class Profile final : public VxApProfileStorage {
public:
    /// Reads the profile's file, or starts a fresh profile if there is none or if it is damaged;
    /// `complaint` then names the damage. Throws `InputError` as `readProfileFile`.
    Profile(std::string name, std::filesystem::path file, std::string& complaint);

    const std::string& name() const { return m_name; }
    const std::wstring& wideName() const { return m_wideName; }
    const std::filesystem::path& file() const { return m_file; }

    /// The kept value of a variable; nil if the profile has none.
    Value variable(std::string_view name) const;
    /// Keeps a number or a text; anything else, nil for one, takes the variable away.
    void setVariable(std::string_view name, const Value& value);

    /// A key of the profile's part of the registry; an empty one if there is none.
    pugi::xml_node findRegistryKey(const RegistryPath& key) const;
    /// A value of it: the last name of the path is the value's, the others are the keys'. Nil if there
    /// is none.
    Value registryValue(const RegistryPath& path) const;
    /// Keeps a value as `writeRegistryValue`.
    void setRegistryValue(const RegistryPath& path, const Value& value);

    /// Writes the file, atomically. Throws `InputError`; the old file is untouched then.
    void save() const;

    /// The node at a path below the storage, counted for the caller; the first makes what is
    /// missing, the other gives null then. Null for an empty path.
    IXMLDOMNode* makeNode(std::string_view path);
    IXMLDOMNode* findNode(std::string_view path);

    // VxApProfileStorage:
    IXMLDOMNode* createNode(const wchar_t* path) override;
    IXMLDOMNode* openNode(const wchar_t* path) override;

private:
    pugi::xml_node section(const char* name) const;

    std::string m_name;
    std::wstring m_wideName;
    std::filesystem::path m_file;
    std::shared_ptr<XmlTree> m_tree;
};

}  // namespace workbench
