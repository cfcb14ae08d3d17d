#include "workbench/host/bar_memory.h"

#include <cstdint>
#include <cstdio>
#include <iterator>
#include <string>

namespace workbench {

namespace {

/// "PaletteSets/Set-" and the tool's ID in hexadecimal digits: braces can't stand in a node's name.
std::string pathOf(const GUID& tool) {
    char digits[40];
    const std::uint8_t* const last = tool.Data4;
    std::snprintf(digits, std::size(digits), "%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X",
                  tool.Data1, tool.Data2, tool.Data3, last[0], last[1], last[2], last[3], last[4],
                  last[5], last[6], last[7]);
    return std::string("PaletteSets/Set-") + digits;
}

}  // namespace

BarMemory::BarMemory(Toolkit& toolkit, ProfileStore& profiles)
    : m_toolkit(toolkit),
      m_profiles(profiles) {
    m_toolkit.bars().setStorage(this);
    m_profiles.watch(*this);
}

BarMemory::~BarMemory() {
    m_profiles.endWatch(*this);
    m_toolkit.bars().setStorage(nullptr);
}

IXMLDOMNode* BarMemory::openBar(const GUID& tool, bool create) {
    const std::string path = pathOf(tool);
    Profile& profile = m_profiles.current();
    return create ? profile.makeNode(path) : profile.findNode(path);
}

void BarMemory::complain(const GUID& tool) {
    m_profiles.complain("/Storage/" + pathOf(tool) +
                        ": no place where the bar may stand; it stands where its module puts it");
}

void BarMemory::currentProfileChanged(const wchar_t* /*name*/) {
    m_toolkit.bars().loadAll();
}

void BarMemory::currentProfileWillBeSaved(const wchar_t* /*name*/) {
    m_toolkit.bars().saveAll();
}

}  // namespace workbench
