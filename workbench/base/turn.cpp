#include "workbench/base/turn.h"

#include <deque>
#include <utility>

namespace workbench {

namespace {

std::deque<std::function<void()>> s_putOff;

}  // namespace

int Turn::s_depth = 0;
bool Turn::s_isWorkWaiting = false;

/// Does what was put off, and what that puts off in its turn.
void Turn::catchUp() {
    while (!s_putOff.empty()) {
        const std::function<void()> work = std::move(s_putOff.front());
        s_putOff.pop_front();
        work();
    }
    s_isWorkWaiting = false;
}

void Turn::putOff(std::function<void()> work) {
    if (!isUnderWay())
        return work();
    s_putOff.push_back(std::move(work));
    s_isWorkWaiting = true;
}

void Turn::keep(std::shared_ptr<void> object) {
    if (isUnderWay())
        putOff([kept = std::move(object)] {});
}

}  // namespace workbench
