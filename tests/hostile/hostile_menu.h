#pragma once

#include <string>

namespace hostile {

/// The menu of the examples with the hostile module's control on two of its panels, ahead of and
/// behind the controls there, and with a panel of its own behind all others.
std::string hostileMenu();

}  // namespace hostile
