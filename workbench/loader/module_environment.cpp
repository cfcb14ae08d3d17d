#include "workbench/loader/module_environment.h"

#include <cstdlib>

namespace workbench {

namespace {

std::optional<std::string> read(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

bool write(const std::string& name, const std::optional<std::string>& value) {
    const int failure = value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
    return failure == 0;
}

}  // namespace

ModuleEnvironment::~ModuleEnvironment() {
    for (const auto& [name, value] : m_before)
        write(name, value);
}

bool ModuleEnvironment::set(const std::string& name, const std::optional<std::string>& value) {
    std::optional<std::string> before = read(name);
    if (!write(name, value))
        return false;
    m_before.try_emplace(name, std::move(before));
    return true;
}

}  // namespace workbench
