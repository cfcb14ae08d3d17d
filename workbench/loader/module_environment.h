#pragma once

#include <map>
#include <optional>
#include <string>

namespace workbench {

/// The variables of the process environment that modules are to see. What was there before comes
/// back with the end of this object.
class ModuleEnvironment {
public:
    ModuleEnvironment() = default;
    ModuleEnvironment(const ModuleEnvironment&) = delete;
    ModuleEnvironment& operator=(const ModuleEnvironment&) = delete;
    ~ModuleEnvironment();

    /// Sets a variable, or takes it away for nothing. False for a name that no variable can have.
    bool set(const std::string& name, const std::optional<std::string>& value);

private:
    std::map<std::string, std::optional<std::string>> m_before;  // nothing: it was not set
};

}  // namespace workbench
