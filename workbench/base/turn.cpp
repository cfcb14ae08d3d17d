#include "workbench/base/turn.h"

#include <deque>
#include <utility>

namespace workbench {

namespace {

std::deque<std::function<void()>> s_putOff;

}  // namespace

int Turn::s_depth = 0;

/// Does what was put off, and what that puts off in its turn.
void Turn::catchUp() {
    while (!s_putOff.empty()) {
        const std::function<void()> work = std::move(s_putOff.front());
        s_putOff.pop_front();
        work();
    }
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
