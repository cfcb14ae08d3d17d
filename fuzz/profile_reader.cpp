#include "workbench/profiles/profile_file.h"
#include "workbench/profiles/variable_element.h"
#include "workbench/xml/xml_tree.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace {

/// Reads each variable that the profile keeps, sense or nonsense.
void readVariables(const workbench::XmlTree& tree) {
    const pugi::xml_node section = tree.root().child("Variables");
    for (const pugi::xml_node variable : section.children())
        workbench::readVariable(section, variable.attribute("Name").value());
}

}  // namespace

/// Any text is either a profile or damaged, with a reason; and a profile that was saved is one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using workbench::XmlTree;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::string reason;
    const std::shared_ptr<XmlTree> tree = XmlTree::parse(text, workbench::kProfileRoot, reason);
    if (tree == nullptr) {
        if (reason.empty())
            std::abort();
        return 0;
    }
    readVariables(*tree);
    if (XmlTree::parse(tree->text(), workbench::kProfileRoot, reason) == nullptr)
        std::abort();
    return 0;
}
