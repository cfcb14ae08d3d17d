#pragma once

#include <hostapi/zorq/documents.h>

#include <memory>
#include <vector>

namespace VxDaCmdUtil {

/// Runs queued actions of one document when its command processor comes to rest.
class InputContextReactor final : public VxEdInputContextReactor {
public:
    /// An action behind a gesture.
    class Callback {
    public:
        Callback() = default;
        Callback(const Callback&) = delete;
        Callback& operator=(const Callback&) = delete;
        virtual ~Callback() = default;
        virtual void run() = 0;
    };

    /// Queues an action behind those that wait already.
    void append(std::unique_ptr<Callback> callback);

    // VxEdInputContextReactor:
    void beginQuiescentState() override;

private:
    std::vector<std::unique_ptr<Callback>> m_callbacks;  // in the order of queueing
    bool m_draining = false;  // an action's own command may bring the processor to rest again
};

}  // namespace VxDaCmdUtil
