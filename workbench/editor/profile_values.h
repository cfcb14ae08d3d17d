#pragma once

#include "workbench/base/value.h"

#include <string>
#include <string_view>

namespace workbench {

/// Where the system variables and settings that belong to the user's profile are kept.
class ProfileValues {
public:
    virtual ~ProfileValues() = default;
    /// Name of the profile that is in use.
    virtual std::string currentProfile() const = 0;
    /// The kept value of a variable; nil if the profile has none.
    virtual Value value(std::string_view variable) const = 0;
    virtual void setValue(std::string_view variable, const Value& value) = 0;
    /// What the profile keeps of the registry under a path, "Key/Key/Value"; nil for nothing.
    virtual Value registryValue(std::string_view path) const = 0;
};

}  // namespace workbench
