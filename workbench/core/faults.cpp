#include "workbench/core/faults.h"

namespace workbench {

void Faults::fail(std::string_view call, std::optional<int> status, std::optional<int> count,
                  int after) {
    m_faults.insert_or_assign(std::string(call), Pending{status, count, after, false});
}

void Faults::unfail(std::string_view call) {
    if (const auto found = m_faults.find(call); found != m_faults.end())
        m_faults.erase(found);
}

void Faults::endLasting(std::string_view call) {
    const auto found = m_faults.find(call);
    if (found != m_faults.end() && !found->second.left)
        m_faults.erase(found);
}

void Faults::hide(std::string_view library, std::string_view symbol) {
    m_hidden.emplace(library, symbol);
}

void Faults::unhide(std::string_view library, std::string_view symbol) {
    m_hidden.erase({std::string(library), std::string(symbol)});
}

bool Faults::isHidden(std::string_view library, std::string_view symbol) const {
    return m_hidden.contains({std::string(library), std::string(symbol)});
}

std::optional<Faults::Fault> Faults::take(std::string_view call) {
    if (m_faults.empty())
        return {};
    const auto found = m_faults.find(call);
    if (found == m_faults.end())
        return {};
    if (found->second.passes > 0) {
        --found->second.passes;
        return {};
    }
    const Fault fault{found->second.status};
    found->second.taken = true;
    if (found->second.left && --*found->second.left <= 0)
        m_faults.erase(found);
    return fault;
}

std::vector<std::string> Faults::untaken() const {
    std::vector<std::string> calls;
    for (const auto& [call, pending] : m_faults) {
        if (!pending.taken)
            calls.push_back(call);
    }
    return calls;
}

}  // namespace workbench
