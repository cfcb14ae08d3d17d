#include "tests/hostile/module/attacker.h"

#include "tests/hostile/module/actions.h"

namespace hostile {

Attacker& Attacker::instance() {
    static Attacker s_attacker;
    return s_attacker;
}

void Attacker::arm(Point point, int occurrence, Action action) {
    m_counts.fill(0);
    m_point = point;
    m_occurrence = occurrence;
    m_action = action;
    m_struck = false;
}

void Attacker::reach(Point point) {
    const int count = ++m_counts[static_cast<std::size_t>(point)];
    if (point != m_point || count != m_occurrence)
        return;
    // What it does brings it to further points.
    m_point = kNowhere;
    m_struck = true;
    perform(m_action);
}

void reach(Point point) {
    Attacker::instance().reach(point);
}

}  // namespace hostile
