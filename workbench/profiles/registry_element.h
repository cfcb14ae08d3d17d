#pragma once

#include "workbench/base/value.h"

#include <pugixml.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// The names of a path of the registry, from the outermost key in.
using RegistryPath = std::vector<std::string>;

/// A path with its names between "/" or "\". Nothing for one that names nothing, or has an empty name or
/// one with a control character.
std::optional<RegistryPath> parseRegistryPath(std::string_view text);

/// \name What a profile keeps of the registry
/// Elements of its section: `<Key Name="...">` with keys and `<Value Name="..." Type="dword|text"
/// Data="..."/>` in it. Names are taken without regard to case.
/// @{

/// The element of a key, the section's own for an empty path; an empty one if there is none.
pugi::xml_node findRegistryKey(pugi::xml_node section, const RegistryPath& key);
/// A value of a key; nil if there is none or its element makes no sense.
Value readRegistryValue(pugi::xml_node key, std::string_view name);
/// Keeps a text or a number of 32 bits without sign; any other value takes the value away, and with it
/// the keys that hold nothing any more.
void writeRegistryValue(pugi::xml_node section, const RegistryPath& key, std::string_view name,
                        const Value& value);
/// @}

/// Whether a value can stand in the registry: a number from 0 to 4294967295, or a text without control
/// characters other than tabulators and line ends.
bool isRegistryValue(const Value& value);

}  // namespace workbench
