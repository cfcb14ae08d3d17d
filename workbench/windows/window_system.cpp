#include "workbench/windows/window_system.h"

namespace workbench {

WindowSystem::WindowSystem(Clock& clock, Journal& journal)
    : m_changes(*this, journal),
      m_messages(*this, m_changes, journal),
      m_focus(*this, m_changes, m_messages),
      m_state(*this, m_changes, m_messages, m_focus),
      m_queue(*this, m_messages, m_focus),
      m_timers(clock, *this, m_messages, m_queue),
      m_life({*this, m_changes, m_messages, m_focus, m_state, m_timers}) {}

WindowSystem::~WindowSystem() {
    m_life.abandonAll();
}

}  // namespace workbench
