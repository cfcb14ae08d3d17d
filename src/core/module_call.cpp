#include "core/module_call.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace {

std::vector<std::shared_ptr<void>> s_ending;  // out of service, in the order in which they went

}  // namespace

int ModuleCall::s_depth = 0;
bool ModuleCall::s_isAnyEnding = false;

void ModuleCall::freeEnding() {
    // By index: what ends now may end others, which join the list.
    for (std::size_t i = 0; i < s_ending.size(); ++i) {
        const std::shared_ptr<void> object = std::move(s_ending[i]);
    }
    s_ending.clear();
    s_isAnyEnding = false;
}

void keepDuringCall(std::shared_ptr<void> object) {
    if (ModuleCall::s_depth == 0)
        return;
    s_ending.push_back(std::move(object));
    ModuleCall::s_isAnyEnding = true;
}
