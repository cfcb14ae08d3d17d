#pragma once

#include "core/quiescent_action.h"

#include <hostapi/zorq/documents.h>

#include <memory>
#include <vector>

namespace VxDaCmdUtil {

/// Runs queued actions of one document when its command processor comes to rest.
class InputContextReactor final : public VxEdInputContextReactor {
public:
    using Callback = QuiescentAction;

    /// Queues an action behind those that wait already.
    void append(std::unique_ptr<Callback> callback);
    /// Drops all actions that wait.
    void drop() { m_callbacks.clear(); }

    // VxEdInputContextReactor:
    void beginQuiescentState() override;

private:
    class Pass;

    std::vector<std::unique_ptr<Callback>> m_callbacks;  // in the order of queueing
    bool m_draining = false;                             // a pass is under way
};

}  // namespace VxDaCmdUtil
