#include "workbench/base/turn.h"

#include <deque>
#include <utility>

namespace workbench {

namespace {

int s_depth = 0;
std::deque<std::function<void()>> s_putOff;

/// Does what was put off, and what that puts off in its turn.
void catchUp() {
    while (!s_putOff.empty()) {
        const std::function<void()> work = std::move(s_putOff.front());
        s_putOff.pop_front();
        work();
    }
}

}  // namespace

Turn::Turn() {
    ++s_depth;
}

Turn::~Turn() {
    // The turn is still under way: what ends now may start turns of its own.
    if (s_depth == 1)
        catchUp();
    --s_depth;
}

bool Turn::isUnderWay() {
    return s_depth > 0;
}

void Turn::putOff(std::function<void()> work) {
    if (isUnderWay())
        s_putOff.push_back(std::move(work));
    else
        work();
}

void Turn::keep(std::shared_ptr<void> object) {
    if (isUnderWay())
        s_putOff.emplace_back([kept = std::move(object)] {});
}

}  // namespace workbench
