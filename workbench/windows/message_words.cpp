#include "workbench/windows/message_words.h"

#include "workbench/base/text.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace workbench {

namespace {

enum class Argument { Text, Object };

struct PointerMessage {
    UINT message;
    Argument argument;
};

/// The messages whose lParam is a pointer.
constexpr PointerMessage kPointerMessages[] = {
    {WM_CREATE, Argument::Object},
    {WM_DRAWITEM, Argument::Object},
    {WM_WINDOWPOSCHANGED, Argument::Object},
    {WM_NOTIFY, Argument::Object},
    {WM_REFLECT_BASE + WM_NOTIFY, Argument::Object},
    {1565, Argument::Object},  // the theme that changed
    {1605, Argument::Object},  // the item that was clicked
    {1724, Argument::Object},  // the document to be activated
    {1725, Argument::Text},    // the file name of the last document
    {1726, Argument::Object},  // the document that became current
    {1727, Argument::Text},    // the variable that changed
    {1728, Argument::Text},    // the variable that will change
    {1729, Argument::Text},    // the command that started
    {1730, Argument::Text},    // the command that ended
    {1731, Argument::Text},    // the command that was cancelled
    {1737, Argument::Object},  // the document to be destroyed
};

}  // namespace

Value shownLParam(UINT message, LPARAM lParam) {
    const auto* const found =
        std::find_if(std::begin(kPointerMessages), std::end(kPointerMessages),
                     [message](const PointerMessage& row) { return row.message == message; });
    if (found == std::end(kPointerMessages))
        return static_cast<std::int64_t>(lParam);
    if (lParam == 0)
        return {};
    if (found->argument == Argument::Object)
        return "object";
    return toUtf8(reinterpret_cast<const wchar_t*>(lParam));
}

}  // namespace workbench
