#include "workbench/commands/text_style_commands.h"

#include "workbench/base/text.h"
#include "workbench/commands/answers.h"
#include "workbench/commands/complaints.h"
#include "workbench/commands/host_commands.h"
#include "workbench/drawing/records/text_style.h"
#include "workbench/editor/document.h"
#include "workbench/editor/editor.h"

#include <numbers>
#include <optional>
#include <utility>

namespace workbench {

namespace {

using drawing::Database;
using drawing::ObjectId;
using drawing::RecordKind;
using drawing::TextStyle;

constexpr const wchar_t* kStyleVariable = L"TEXTSTYLE";
constexpr const wchar_t* kSizeVariable = L"TEXTSIZE";
constexpr double kRadiansADegree = std::numbers::pi / 180.0;

/// A number of a style that is asked for: what it is called in files, and how much the answer is
/// multiplied for it.
struct StyleNumber {
    const char* property;
    const wchar_t* prompt;
    double factor;
    double TextStyle::*member;
};
constexpr StyleNumber kHeight{"height", L"Height of text", 1.0, &TextStyle::height};
constexpr StyleNumber kWidth{"widthFactor", L"Width factor", 1.0, &TextStyle::widthFactor};
constexpr StyleNumber kOblique{"oblique", L"Obliquing angle in degrees", kRadiansADegree,
                               &TextStyle::oblique};

/// Sets a number of a style; false, with nothing changed, for one out of range.
bool setNumber(TextStyle& style, const StyleNumber& number, double answer) {
    const double value = answer * number.factor;
    for (const drawing::Property<TextStyle>& property : TextStyle::properties()) {
        if (property.name == number.property && (value < property.least || value > property.most))
            return false;
    }
    style.*number.member = value;
    return true;
}

std::wstring currentName(const CommandScope& scope) {
    const Value name = scope.editor.read(kStyleVariable);
    return name.isString() ? toWide(name.asString()) : std::wstring();
}

/// The style of a name as it is, or a fresh one.
TextStyle styleNamed(const Database& database, std::wstring_view name) {
    const auto* const present =
        database.look<TextStyle>(database.find(RecordKind::TextStyle, toUtf8(name)));
    if (present != nullptr)
        return *present;
    TextStyle fresh;
    fresh.name = toUtf8(name);
    return fresh;
}

/// Adds a style, or gives the one of its name what it has.
bool store(Database& database, const TextStyle& style) {
    const ObjectId id = database.find(RecordKind::TextStyle, style.name);
    if (id.isNull())
        return database.add(style).status == drawing::Status::Ok;
    drawing::Writing<TextStyle> present(database, id);
    if (present)
        *present = style;
    return static_cast<bool>(present);
}

/// A style that is the current one already isn't made so again: its height alone may have changed.
bool makeCurrent(const CommandScope& scope, const TextStyle& style) {
    SystemVariables& variables = scope.editor.variables();
    if (!equalNoCase(currentName(scope), toWide(style.name)))
        return variables.write(kStyleVariable, style.name, VariableWriter::Program);
    if (style.height > 0.0 && variables.read(kSizeVariable) != Value(style.height))
        return variables.write(kSizeVariable, style.height, VariableWriter::Program);
    return true;
}

CommandState apply(const CommandScope& scope, const TextStyle& style) {
    const bool done = store(scope.document.data(), style) && makeCurrent(scope, style);
    return done ? CommandState::Ended
                : failBecause(scope, L"The text style " + inQuotes(toWide(style.name)) +
                                         L" can't be changed now.");
}

void listStyles(const CommandScope& scope) {
    const Database& database = scope.document.data();
    scope.editor.print(scope.document, L"Text styles:");
    for (const ObjectId id : database.ids(RecordKind::TextStyle))
        scope.editor.print(scope.document, toWide(database.look<TextStyle>(id)->name));
}

/// Asks for a style's name and then for one thing after the other; Enter keeps what it is.
class StyleCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override {
        m_style = styleNamed(scope.document.data(), currentName(scope));
        return CommandState::Waiting;
    }

    CommandState feed(const CommandScope& scope, std::wstring_view answer) override {
        switch (m_step) {
        case Step::Name:
            return takeName(scope, answer);
        case Step::Font:
            if (!answer.empty())
                m_style.font = toUtf8(answer);
            m_step = Step::Height;
            return CommandState::Waiting;
        case Step::Height:
            return takeNumber(scope, kHeight, answer, Step::Width);
        case Step::Width:
            return takeNumber(scope, kWidth, answer, Step::Oblique);
        case Step::Oblique:
            return takeNumber(scope, kOblique, answer, Step::Done);
        case Step::Done:
            break;
        }
        return CommandState::Ended;
    }

    std::wstring prompt() const override {
        switch (m_step) {
        case Step::Name:
            return L"Name of text style or [?] <" + toWide(m_style.name) + L">:";
        case Step::Font:
            return L"Font <" + toWide(m_style.font) + L">:";
        case Step::Height:
            return promptFor(kHeight);
        case Step::Width:
            return promptFor(kWidth);
        case Step::Oblique:
            return promptFor(kOblique);
        case Step::Done:
            break;
        }
        return {};
    }

    bool takesBlanks() const override { return m_step == Step::Name || m_step == Step::Font; }

private:
    enum class Step { Name, Font, Height, Width, Oblique, Done };

    CommandState takeName(const CommandScope& scope, std::wstring_view answer) {
        if (answer == L"?") {
            listStyles(scope);
            return CommandState::Ended;
        }
        if (!answer.empty())
            m_style = styleNamed(scope.document.data(), answer);
        m_step = Step::Font;
        return CommandState::Waiting;
    }

    CommandState takeNumber(const CommandScope& scope, const StyleNumber& number,
                            std::wstring_view answer, Step next) {
        const std::optional<double> given = parseNumber(answer);
        if (!answer.empty() && (!given || !setNumber(m_style, number, *given)))
            return askAgain(scope, inQuotes(answer) + L" can't be the " + number.prompt + L".");
        m_step = next;
        return next == Step::Done ? apply(scope, m_style) : CommandState::Waiting;
    }

    std::wstring promptFor(const StyleNumber& number) const {
        return std::wstring(number.prompt) + L" <" +
               showValue(Value(m_style.*number.member / number.factor)) + L">:";
    }

    TextStyle m_style;
    Step m_step = Step::Name;
};

class StyleDialogCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override {
        scope.editor.journal().add("dialog", {{"name", "Text Style"}});
        const std::optional<Value> answer = scope.editor.answers().take("dialog");
        if (!answer || !answer->isTable())
            return CommandState::Cancelled;
        const std::optional<TextStyle> style = read(scope, *answer);
        return style ? apply(scope, *style)
                     : failBecause(scope, L"The height, the width or the angle is out of range.");
    }

private:
    static std::optional<TextStyle> read(const CommandScope& scope, const Value& answer) {
        const Value* const name = answer.member("name");
        TextStyle style = styleNamed(
            scope.document.data(), name == nullptr ? currentName(scope) : toWide(name->asString()));
        if (const Value* const font = answer.member("font"))
            style.font = font->asString();
        const std::pair<const char*, StyleNumber> numbers[] = {
            {"height", kHeight}, {"width", kWidth}, {"oblique", kOblique}};
        for (const auto& [key, number] : numbers) {
            const Value* const given = answer.member(key);
            if (given != nullptr && !setNumber(style, number, given->asReal()))
                return {};
        }
        return style;
    }
};

}  // namespace

void addTextStyleCommands(CommandRegistry& registry) {
    addHostCommand<StyleCommand>(registry, L"-STYLE", CommandTraits::Plain);
    addHostCommand<StyleDialogCommand>(registry, L"STYLE", CommandTraits::Plain);
}

}  // namespace workbench
