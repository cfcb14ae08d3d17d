#pragma once

#include <stdexcept>

namespace workbench {

/// A call of a script that can't be carried out; what() is the reason, without a place.
class ScriptError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace workbench
