#pragma once

#include <stdexcept>

namespace workbench::gestures {

/// A gesture that no user can do, such as one on a window that is not on show; what() says why.
class GestureError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace workbench::gestures
