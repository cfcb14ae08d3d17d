#include "workbench/profiles/profile.h"

#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/profiles/profile_file.h"
#include "workbench/profiles/variable_element.h"
#include "workbench/xml/xml_node.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace workbench {

namespace {

constexpr const char* kStorage = "Storage";
constexpr const char* kVariables = "Variables";
constexpr const char* kRegistry = "Registry";

/// The names of a path "A/B"; empty for one with a part that cannot be a node.
std::vector<std::string> partsOf(std::string_view path) {
    std::vector<std::string> parts;
    for (std::size_t start = 0; start <= path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        parts.emplace_back(path.substr(start, end - start));
        if (!isXmlName(parts.back()))
            return {};
        start = end + 1;
    }
    return parts;
}

/// The keys of a value's path.
RegistryPath keyOf(const RegistryPath& path) {
    return {path.begin(), path.end() - 1};
}

}  // namespace

Profile::Profile(std::string name, std::filesystem::path file, std::string& complaint)
    : m_name(std::move(name)),
      m_wideName(toWide(m_name)),
      m_file(std::move(file)) {
    ProfileReading reading = readProfileFile(m_file);
    complaint = std::move(reading.complaint);
    m_tree = reading.tree != nullptr ? std::move(reading.tree) : XmlTree::make(kProfileRoot);
}

Value Profile::variable(std::string_view name) const {
    return readVariable(section(kVariables), name);
}

void Profile::setVariable(std::string_view name, const Value& value) {
    writeVariable(section(kVariables), name, value);
}

pugi::xml_node Profile::findRegistryKey(const RegistryPath& key) const {
    return workbench::findRegistryKey(m_tree->root().child(kRegistry), key);
}

Value Profile::registryValue(const RegistryPath& path) const {
    return readRegistryValue(findRegistryKey(keyOf(path)), path.back());
}

void Profile::setRegistryValue(const RegistryPath& path, const Value& value) {
    writeRegistryValue(section(kRegistry), keyOf(path), path.back(), value);
}

void Profile::save() const {
    writeFileAtomically(m_file, m_tree->text());
}

IXMLDOMNode* Profile::createNode(const wchar_t* path) {
    HostCall call("VxApProfileStorage::createNode", {path});
    if (call.failed() || path == nullptr)
        return call.returns<IXMLDOMNode*>(nullptr);
    return call.returns(makeNode(toUtf8(path)));
}

IXMLDOMNode* Profile::openNode(const wchar_t* path) {
    HostCall call("VxApProfileStorage::openNode", {path});
    if (call.failed() || path == nullptr)
        return call.returns<IXMLDOMNode*>(nullptr);
    return call.returns(findNode(toUtf8(path)));
}

IXMLDOMNode* Profile::makeNode(std::string_view path) {
    const std::vector<std::string> parts = partsOf(path);
    if (parts.empty())
        return nullptr;
    pugi::xml_node element = section(kStorage);
    for (const std::string& part : parts) {
        const pugi::xml_node child = element.child(part.c_str());
        element = child ? child : element.append_child(part.c_str());
    }
    return m_tree->makeNode(element);
}

IXMLDOMNode* Profile::findNode(std::string_view path) {
    const std::vector<std::string> parts = partsOf(path);
    if (parts.empty())
        return nullptr;
    pugi::xml_node element = section(kStorage);
    for (const std::string& part : parts)
        element = element.child(part.c_str());
    return element ? m_tree->makeNode(element) : nullptr;
}

pugi::xml_node Profile::section(const char* name) const {
    const pugi::xml_node root = m_tree->root();
    const pugi::xml_node present = root.child(name);
    return present ? present : pugi::xml_node(root).append_child(name);
}

}  // namespace workbench
