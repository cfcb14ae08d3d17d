#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace workbench {

/// Faults on demand: host calls that are to fail, and libraries and symbols that are to be missing.
class Faults {
public:
    /// Has a host call fail: with a status, or with the call's usual one; `count` times, or until
    /// `unfail`; the first `after` calls from now on go well. An earlier fault of the call is replaced.
    void fail(std::string_view call, std::optional<int> status = {}, std::optional<int> count = {},
              int after = 0);
    void unfail(std::string_view call);
    /// Ends a fault that was given no count.
    void endLasting(std::string_view call);

    /// Makes a library, or one symbol of it, impossible to find. Names are exact.
    void hide(std::string_view library, std::string_view symbol = {});
    void unhide(std::string_view library, std::string_view symbol = {});
    bool isHidden(std::string_view library, std::string_view symbol = {}) const;

    /// A fault that has come to a call.
    struct Fault {
        std::optional<int> status;  ///< nothing: the call's usual failure
    };
    /// The fault of a call that is being made now, counted down; nothing if it is not to fail.
    std::optional<Fault> take(std::string_view call);
    /// Whether any call is told to fail.
    bool isAnyPending() const { return !m_faults.empty(); }
    /// The calls that are told to fail and have not been made since.
    std::vector<std::string> untaken() const;

private:
    struct Pending {
        std::optional<int> status;
        std::optional<int> left;  // nothing: without end
        int passes = 0;           // calls that still go well
        bool taken = false;
    };
    std::map<std::string, Pending, std::less<>> m_faults;
    std::set<std::pair<std::string, std::string>> m_hidden;  // library, symbol or empty
};

}  // namespace workbench
