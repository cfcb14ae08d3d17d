#include "controls/input_context_reactor.h"

#include "core/module_call.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace VxDaCmdUtil {

/// A pass over the queue. When it ends, what it ran is taken out, also when an action has thrown.
class InputContextReactor::Pass {
public:
    explicit Pass(InputContextReactor& reactor)
        : m_reactor(reactor),
          m_count(reactor.m_callbacks.size()) {
        m_reactor.m_draining = true;
    }
    Pass(const Pass&) = delete;
    Pass& operator=(const Pass&) = delete;
    ~Pass() {
        auto& callbacks = m_reactor.m_callbacks;
        const std::size_t done = std::min(m_done, callbacks.size());
        callbacks.erase(callbacks.begin(), callbacks.begin() + static_cast<std::ptrdiff_t>(done));
        m_reactor.m_draining = false;
    }

    void run() {
        // An action may have had the queue dropped.
        while (m_done < m_count && m_done < m_reactor.m_callbacks.size()) {
            // Taken out first: an action may queue another, which moves the rest.
            const std::unique_ptr<Callback> callback = std::move(m_reactor.m_callbacks[m_done++]);
            callback->run();
        }
        // Kept as it is: what was queued during the pass goes with the rest, because one gesture is
        // one entry and an action that queues itself anew would never come to an end.
        m_reactor.m_callbacks.clear();
    }

private:
    InputContextReactor& m_reactor;
    const std::size_t m_count;
    std::size_t m_done = 0;  // actions begun
};

void InputContextReactor::append(std::unique_ptr<Callback> callback) {
    m_callbacks.push_back(std::move(callback));
}

void InputContextReactor::beginQuiescentState() {
    const ModuleCall call;
    // An action's own command may bring the processor to rest again.
    if (m_callbacks.empty() || m_draining)
        return;
    Pass(*this).run();
}

}  // namespace VxDaCmdUtil
