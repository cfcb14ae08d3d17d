#pragma once

#include <stdexcept>

namespace workbench {

/// The framework's invalid-argument failure. It passes through the product's code and ends the
/// message, timer or event that is running; whoever delivered that shows the user a box.
class InvalidArgument : public std::invalid_argument {
public:
    InvalidArgument() : std::invalid_argument("An invalid argument was encountered.") {}
};

}  // namespace workbench
