#include "controls/input_context_reactor.h"

namespace VxDaCmdUtil {

void InputContextReactor::append(std::unique_ptr<Callback> callback) {
    m_callbacks.push_back(std::move(callback));
}

void InputContextReactor::beginQuiescentState() {
    if (m_callbacks.empty() || m_draining)
        return;
    m_draining = true;
    const std::size_t count = m_callbacks.size();
    for (std::size_t i = 0; i < count; ++i) {
        // Taken out first: an action may queue another, which moves the rest.
        const std::unique_ptr<Callback> callback = std::move(m_callbacks[i]);
        callback->run();
    }
    // Kept as it is: what was queued during the pass goes with the rest, because one gesture is one
    // entry and an action that queues itself anew would never come to an end.
    m_callbacks.clear();
    m_draining = false;
}

}  // namespace VxDaCmdUtil
