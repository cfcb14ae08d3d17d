#pragma once

#include "workbench/base/value.h"

#include <pugixml.hpp>

#include <string_view>

namespace workbench {

/// The variables that a profile keeps: elements `<Variable Name="..." Type="integer|real|text"
/// Value="..."/>` of its section. Names are taken without regard to case.

/// The value of a variable; nil if there is none or its element makes no sense.
Value readVariable(pugi::xml_node section, std::string_view name);
/// Keeps a number or a text; any other value takes the variable away.
void writeVariable(pugi::xml_node section, std::string_view name, const Value& value);

}  // namespace workbench
