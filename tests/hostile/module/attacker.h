#pragma once

#include "tests/hostile/attack.h"

#include <array>
#include <cstddef>

namespace hostile {

/// Counts the points that the module comes to, and strikes once at the one that it is armed for.
class Attacker {
public:
    /// The one of this module.
    static Attacker& instance();

    void arm(Point point, int occurrence, Action action);
    void reach(Point point);
    int count(Point point) const { return m_counts[static_cast<std::size_t>(point)]; }
    bool hasStruck() const { return m_struck; }

private:
    static constexpr Point kNowhere = Point::kCount;

    std::array<int, static_cast<std::size_t>(Point::kCount)> m_counts{};
    Point m_point = kNowhere;  // where to strike; `kNowhere`: it isn't armed
    int m_occurrence = 0;
    Action m_action = Action::kCount;
    bool m_struck = false;
};

/// Short for `Attacker::instance().reach`.
void reach(Point point);

}  // namespace hostile
