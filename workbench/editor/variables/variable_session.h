#pragma once

#include <string>

namespace workbench {

/// The session that computed variables tell of.
class VariableSession {
public:
    virtual ~VariableSession() = default;
    /// Name of the profile that is in use.
    virtual std::string profileName() const = 0;
    /// Name of the current document; empty without one.
    virtual std::wstring documentName() const = 0;
    /// What CMDACTIVE tells of the current document; 0 without one.
    virtual int commandActivity() const = 0;
    /// What CMDNAMES tells of the current document; empty without one.
    virtual std::wstring commandNames() const = 0;
};

}  // namespace workbench
