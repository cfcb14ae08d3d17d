#include "core/module_call.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace {

int s_depth = 0;                              // calls that run
std::vector<std::shared_ptr<void>> s_ending;  // out of service, in the order in which they went

void freeEnding() {
    // By index: what ends now may end others, which join the list.
    for (std::size_t i = 0; i < s_ending.size(); ++i) {
        const std::shared_ptr<void> object = std::move(s_ending[i]);
    }
    s_ending.clear();
}

}  // namespace

ModuleCall::ModuleCall() noexcept {
    ++s_depth;
}

ModuleCall::~ModuleCall() {
    // Before the count goes down, so that a call from a destructor isn't taken for the outermost.
    if (s_depth == 1)
        freeEnding();
    --s_depth;
}

void keepDuringCall(std::shared_ptr<void> object) {
    if (s_depth != 0)
        s_ending.push_back(std::move(object));
}
