#pragma once

#include "workbench/base/value.h"

#include <map>
#include <string>
#include <string_view>

namespace workbench {

/// Where the system variables that belong to the user's profile are kept.
class ProfileValues {
public:
    virtual ~ProfileValues() = default;
    /// Name of the profile that is in use.
    virtual std::string currentProfile() const = 0;
    /// The kept value of a variable; nil if the profile has none.
    virtual Value value(std::string_view variable) const = 0;
    virtual void setValue(std::string_view variable, const Value& value) = 0;
};

/// Profile values that no profile keeps: they end with the object.
class PassingProfileValues final : public ProfileValues {
public:
    std::string currentProfile() const override { return "Default"; }
    Value value(std::string_view variable) const override {
        const auto found = m_values.find(variable);
        return found == m_values.end() ? Value() : found->second;
    }
    void setValue(std::string_view variable, const Value& value) override {
        m_values.insert_or_assign(std::string(variable), value);
    }

private:
    std::map<std::string, Value, std::less<>> m_values;
};

}  // namespace workbench
