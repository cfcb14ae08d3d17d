#include "workbench/menu/flyout_graph.h"

#include <algorithm>

namespace workbench {

namespace {

enum class Mark : char { Unseen, OnPath, Done };

struct Step {
    std::size_t panel;
    std::size_t nextFlyout;  // the next of its flyouts to follow
};

std::vector<std::size_t> cycleFrom(const std::vector<Step>& path, std::size_t panel) {
    const auto begin = std::find_if(path.begin(), path.end(),
                                    [panel](const Step& step) { return step.panel == panel; });
    std::vector<std::size_t> cycle;
    for (auto step = begin; step != path.end(); ++step)
        cycle.push_back(step->panel);
    cycle.push_back(panel);
    return cycle;
}

/// Follows all flyouts from `start`. The path is kept by hand, since a file may nest flyouts
/// deeper than the call stack bears.
std::vector<std::size_t> searchFrom(std::size_t start, const FlyoutGraph& graph,
                                    std::vector<Mark>& marks) {
    std::vector<Step> path{{start, 0}};
    marks[start] = Mark::OnPath;
    while (!path.empty()) {
        Step& step = path.back();
        if (step.nextFlyout == graph[step.panel].size()) {
            marks[step.panel] = Mark::Done;
            path.pop_back();
            continue;
        }
        const std::size_t target = graph[step.panel][step.nextFlyout++];
        if (marks[target] == Mark::OnPath)
            return cycleFrom(path, target);
        if (marks[target] == Mark::Unseen) {
            marks[target] = Mark::OnPath;
            path.push_back({target, 0});
        }
    }
    return {};
}

}  // namespace

std::vector<std::size_t> findFlyoutCycle(const FlyoutGraph& graph) {
    std::vector<Mark> marks(graph.size(), Mark::Unseen);
    for (std::size_t start = 0; start < graph.size(); ++start) {
        if (marks[start] != Mark::Unseen)
            continue;
        std::vector<std::size_t> cycle = searchFrom(start, graph, marks);
        if (!cycle.empty())
            return cycle;
    }
    return {};
}

}  // namespace workbench
