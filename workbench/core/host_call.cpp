#include "workbench/core/host_call.h"

#include "workbench/base/text.h"
#include "workbench/core/call_desk.h"

namespace workbench {

CallValue::CallValue(const char* value) {
    if (value != nullptr)
        m_value = std::string_view(value);
}

CallValue::CallValue(const wchar_t* value) {
    if (value != nullptr)
        m_value = std::wstring_view(value);
}

Value CallValue::toValue() const {
    struct Shower {
        Value operator()(Shown shown) const {
            return shown == Shown::Object ? Value("object") : Value();
        }
        Value operator()(bool value) const { return value; }
        Value operator()(std::int64_t value) const { return value; }
        Value operator()(double value) const { return value; }
        Value operator()(std::string_view value) const { return std::string(value); }
        Value operator()(std::wstring_view value) const { return toUtf8(value); }
    };
    return std::visit(Shower{}, m_value);
}

HostCall::HostCall(const char* name, std::initializer_list<CallValue> arguments)
    : m_fault(CallDesk::current().faults().take(name)) {
    Journal& journal = CallDesk::current().journal();
    if (!journal.isRecording())
        return;
    Value::List shown;
    shown.reserve(arguments.size());
    for (const CallValue& argument : arguments)
        shown.push_back(argument.toValue());
    m_record = journal.add("call", {{"name", name}, {"args", std::move(shown)}});
}

void HostCall::noteResult(const CallValue& result) {
    CallDesk::current().journal().complete(m_record, "result", result.toValue());
}

}  // namespace workbench
