#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/windows/number_format.h"

#include <hostapi/window/locale.h>

#include <algorithm>

VxString GetLocaleInfo(UINT type) {
    workbench::HostCall call("GetLocaleInfo", {static_cast<std::int64_t>(type)});
    if (call.failed())
        return {};
    return call.returns(
        workbench::localeInfo(workbench::Workbench::current().options().locale, type));
}

int GetNumberFormat(const wchar_t* number, const NUMBERFMT& format, wchar_t* buffer, int size) {
    workbench::HostCall call("GetNumberFormat", {number});
    const auto text =
        call.failed() || number == nullptr ? std::nullopt : workbench::formatNumber(number, format);
    if (!text || size <= static_cast<int>(text->size()))
        return call.returns(0);
    *std::copy(text->begin(), text->end(), buffer) = L'\0';
    return call.returns(static_cast<int>(text->size()) + 1);
}
