#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace workbench {

/// The character that cancels the present prompt.
constexpr wchar_t kCancelCharacter = 3;
/// What the Esc key types; it cancels like `kCancelCharacter`.
constexpr wchar_t kEscapeCharacter = 27;

/// Whether a text consists of cancel characters only.
bool isCancelText(std::wstring_view text);
/// The text that a menu macro types: ";" becomes Enter, "^C" a cancel character.
std::wstring textOfMacro(std::wstring_view macro);

/// A command's name as it is entered, taken apart.
struct CommandWord {
    bool transparent = false;  ///< entered with "'"
    bool global = false;       ///< entered with "_": only global names count
    std::wstring_view name;    ///< without these marks and without "."
};
CommandWord parseCommandWord(std::wstring_view word);

/// Text on its way to the command line: read answer by answer, since it depends on the prompt
/// whether a blank ends one.
class CommandText {
public:
    CommandText() = default;
    explicit CommandText(std::wstring text) : m_text(std::move(text)) {}

    void append(std::wstring_view text) { m_text += text; }
    bool isEmpty() const { return m_text.empty(); }
    void clear() { m_text.clear(); }

    bool beginsWithCancel() const;
    /// Whether a cancel character comes next, which is then taken.
    bool takeCancel();
    /// The next answer without the character that ends it. Text that nothing ends is an answer too
    /// if `takeRest`. Nothing if no answer is complete, or a cancel character comes first: what
    /// stands before it is dropped.
    std::optional<std::wstring> takeAnswer(bool blanksBelong, bool takeRest);

private:
    std::wstring m_text;
};

}  // namespace workbench
