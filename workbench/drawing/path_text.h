#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace workbench::drawing {

/// A path that leads nowhere, or a value that doesn't fit there. what() names the path and how
/// far it led.
class PathError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The steps of a path: words between dots, and texts or numbers in brackets, as in
/// `layers["A.B"].on` and `viewports[2].locked`. Throws `PathError` for a text that is no path.
std::vector<std::string> parsePath(std::string_view text);

}  // namespace workbench::drawing
