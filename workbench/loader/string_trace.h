#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// Remembers the string resources that were handed out, so that a text on screen can be traced back
/// to the number it came from.
class StringTrace {
public:
    /// Notes that the string of a number was handed out.
    void remember(int number, std::wstring_view text);

    /// The number of the string that a text came from: the string handed out last that is the text,
    /// or else the string with the most words of its own into whose inserts (such as %ls and %d)
    /// the rest of the text fits. Nothing for an empty text or one from elsewhere.
    std::optional<int> resourceNumberOf(std::wstring_view text) const;

private:
    struct Format {
        int number;
        std::vector<std::wstring> literals;  // between the inserts; one more than there are inserts
        std::size_t literalLength;           // characters, all literals together
    };

    std::map<std::wstring, int, std::less<>> m_texts;  // the number that handed the text out last
    std::map<int, Format> m_formats;                   // by number
};

}  // namespace workbench
