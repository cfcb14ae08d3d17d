#pragma once

#include "workbench/base/value.h"

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace workbench {

/// The user's answers to questions that are still to come, queued by kind: "box", "menu", "dialog",
/// "select".
class Answers {
public:
    void queue(std::string_view kind, Value answer) {
        m_queues[std::string(kind)].push_back(std::move(answer));
    }
    /// The next answer of a kind; nothing if none was queued.
    std::optional<Value> take(std::string_view kind);

private:
    std::map<std::string, std::deque<Value>, std::less<>> m_queues;
};

}  // namespace workbench
