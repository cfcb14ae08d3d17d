#include "workbench/core/call_desk.h"

#include <stdexcept>
#include <utility>

namespace workbench {

namespace {

CallDesk* s_current = nullptr;  // not owned; null: none is open

}  // namespace

CallDesk::CallDesk(Journal& journal, Faults& faults)
    : m_journal(journal),
      m_faults(faults),
      m_before(std::exchange(s_current, this)) {}

CallDesk::~CallDesk() {
    s_current = m_before;
}

CallDesk& CallDesk::current() {
    if (s_current == nullptr)
        throw std::logic_error("no host takes calls");
    return *s_current;
}

}  // namespace workbench
