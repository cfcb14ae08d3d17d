#pragma once

#include "tests/hostile/attack.h"

namespace hostile {

/// The names of points and actions as the tests bear them.
const char* nameOf(Point point);
const char* nameOf(Action action);

}  // namespace hostile
