#pragma once

#include "tests/hostile/gesture.h"

#include <string>
#include <vector>

namespace hostile {

/// What a user does in the tree of a layer filter combo, the n-th of that name, from 0 on; `text` is how
/// the combo is called.
std::vector<Gesture> filterGestures(const std::string& control, int number,
                                    const std::string& text);

}  // namespace hostile
