#include "tests/hostile/attack_names.h"
#include "tests/hostile/hostile_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace hostile {

namespace {

struct Case {
    Point point;
    Action action;
    Order order;
};

std::string nameOf(const Case& attack) {
    const char* const order =
        attack.order == Order::HostileFirst ? "_HostileFirst" : "_DashboardFirst";
    return std::string(hostile::nameOf(attack.point)) + "_" + hostile::nameOf(attack.action) +
           order;
}

void PrintTo(const Case& attack, std::ostream* stream) {
    *stream << nameOf(attack);
}

bool makesSense(const Case& attack) {
    // Who throws into the dashboard is a command that it runs; others handle their own exceptions.
    return attack.action != Action::Throw || attack.point == Point::CommandRuns;
}

std::vector<Case> allCases() {
    std::vector<Case> all;
    for (const Order order : {Order::HostileFirst, Order::DashboardFirst}) {
        for (int point = 0; point < static_cast<int>(Point::kCount); ++point) {
            for (int action = 0; action < static_cast<int>(Action::kCount); ++action) {
                const Case attack{static_cast<Point>(point), static_cast<Action>(action), order};
                if (makesSense(attack))
                    all.push_back(attack);
            }
        }
    }
    return all;
}

/// A gesture and the occurrence of the point in it.
struct Chance {
    Gesture gesture;
    int occurrence;
};

class HostileMatrix : public HostileBench, public testing::WithParamInterface<Case> {
protected:
    /// The chances to strike at a point, at most so many, spread over all.
    std::vector<Chance> chances(const Case& attack) {
        constexpr std::size_t kMost = 4;
        constexpr int kMostOccurrences = 3;
        const std::vector<Reached>& survey = surveyOf(attack.order);
        std::vector<Chance> all;
        for (const Gesture& gesture : gestures()) {
            const auto found = std::find_if(
                survey.begin(), survey.end(),
                [&gesture](const Reached& reached) { return reached.gesture == gesture.name; });
            const int count =
                found == survey.end() ? 0 : found->counts[static_cast<std::size_t>(attack.point)];
            for (int occurrence = 1; occurrence <= std::min(count, kMostOccurrences); ++occurrence)
                all.push_back({gesture, occurrence});
        }
        if (all.size() <= kMost)
            return all;
        std::vector<Chance> spread;
        // Each action begins elsewhere, so that all of them together come everywhere.
        const auto offset = static_cast<std::size_t>(attack.action) * 7;
        for (std::size_t i = 0; i < kMost; ++i)
            spread.push_back(all[(offset + i * all.size() / kMost) % all.size()]);
        return spread;
    }

private:
    const std::vector<Reached>& surveyOf(Order order) {
        static std::map<Order, std::vector<Reached>> s_surveys;
        auto [found, isNew] = s_surveys.try_emplace(order);
        if (isNew) {
            found->second = survey();
            expectFreshStart();
        }
        return found->second;
    }
};

}  // namespace

TEST_P(HostileMatrix, LeavesTheDashboardInOrder) {
    const Case& attack = GetParam();
    start(attack.order);
    ASSERT_FALSE(HasFatalFailure());
    const std::vector<Chance> found = chances(attack);
    ASSERT_FALSE(found.empty()) << "no gesture comes to " << hostile::nameOf(attack.point);
    for (const Chance& chance : found) {
        SCOPED_TRACE(chance.gesture.name + ", occurrence " + std::to_string(chance.occurrence));
        EXPECT_TRUE(this->attack(chance.gesture, attack.point, chance.occurrence, attack.action));
        expectSurvival();
        ASSERT_FALSE(HasFatalFailure());
    }
    expectFreshStart();
}

INSTANTIATE_TEST_SUITE_P(Attack, HostileMatrix, testing::ValuesIn(allCases()),
                         [](const auto& each) { return nameOf(each.param); });

}  // namespace hostile
