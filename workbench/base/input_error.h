#pragma once

#include <stdexcept>
#include <string>

namespace workbench {

/// A file that a user wrote cannot be taken, told in one line: what() is "PLACE: REASON".
/// The place is "FILE", "FILE:LINE" or "FILE:LINE: /json/pointer", as much as is known.
class InputError : public std::runtime_error {
public:
    InputError(const std::string& place, const std::string& reason)
        : std::runtime_error(place + ": " + reason),
          m_place(place),
          m_reason(reason) {}

    /// Where the trouble is, without the reason.
    const std::string& place() const { return m_place; }

    /// What is wrong there, without the place.
    const std::string& reason() const { return m_reason; }

private:
    std::string m_place;
    std::string m_reason;
};

}  // namespace workbench
