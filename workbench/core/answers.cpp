#include "workbench/core/answers.h"

namespace workbench {

std::optional<Value> Answers::take(std::string_view kind) {
    const auto queue = m_queues.find(kind);
    if (queue == m_queues.end() || queue->second.empty())
        return {};
    Value answer = std::move(queue->second.front());
    queue->second.pop_front();
    return answer;
}

}  // namespace workbench
