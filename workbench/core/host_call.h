#pragma once

#include "workbench/base/value.h"
#include "workbench/core/faults.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <type_traits>
#include <variant>

namespace workbench {

/// An argument or a result of a host call, as the journal shows it. Holds views only: it is made on
/// every call, also while nothing is recorded.
class CallValue {
public:
    CallValue() = default;
    CallValue(bool value) : m_value(value) {}
    template <class Number>
    requires std::is_integral_v<Number> &&(!std::is_same_v<Number, bool>)CallValue(Number value)
        : m_value(static_cast<std::int64_t>(value)) {}
    CallValue(double value) : m_value(value) {}
    CallValue(std::string_view value) : m_value(value) {}
    CallValue(const char* value);
    CallValue(std::wstring_view value) : m_value(value) {}
    CallValue(const std::wstring& value) : m_value(std::wstring_view(value)) {}
    CallValue(const wchar_t* value);
    /// A pointer shows only whether there is one: addresses differ from run to run.
    CallValue(const void* value) : m_value(value == nullptr ? Shown::Nothing : Shown::Object) {}

    Value toValue() const;

private:
    enum class Shown { Nothing, Object };
    std::variant<Shown, bool, std::int64_t, double, std::string_view, std::wstring_view> m_value =
        Shown::Nothing;
};

/// The scope of one call that the product makes into the host: it enters the journal, and a fault
/// that was asked for is noticed. Stands first in every operation that supplies the host's side:
///
///     int vxedSetVar(const wchar_t* name, const VxResultBuffer* value) {
///         HostCall call("vxedSetVar", {name});
///         if (call.failed()) return call.returns(call.status(kRtError));
///         return call.returns(…);
///     }
class HostCall {
public:
    /// At most eight arguments. `name` is a literal.
    HostCall(const char* name, std::initializer_list<CallValue> arguments = {});
    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;

    /// Whether the call was told to fail.
    bool failed() const { return m_fault.has_value(); }
    /// The status that it was told to fail with, or the usual one.
    int status(int usual) const { return m_fault && m_fault->status ? *m_fault->status : usual; }

    /// Notes the result and hands it through.
    template <class Result>
    Result returns(Result result) {
        if (m_record != 0)
            noteResult(CallValue(result));
        return result;
    }

private:
    void noteResult(const CallValue& result);

    std::uint64_t m_record = 0;  // number of the journal's record; 0: not recorded
    std::optional<Faults::Fault> m_fault;
};

}  // namespace workbench
