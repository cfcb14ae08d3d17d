#include "workbench/drawing/records/layer_filter_expression.h"

#include "workbench/base/text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>

namespace workbench::drawing {

namespace {

using FieldText = std::string (*)(const Layer& layer);

struct Field {
    std::string_view name;
    FieldText text;
};

std::string truthText(bool truth) {
    return truth ? "True" : "False";
}

std::string colourText(const Colour& colour) {
    const Value value = colourValue(colour);
    return value.isString() ? value.asString() : value.describe();
}

constexpr std::array<Field, 9> kFields{{
    {"NAME", [](const Layer& layer) { return layer.name; }},
    {"DESCRIPTION", [](const Layer& layer) { return layer.description; }},
    {"COLOR", [](const Layer& layer) { return colourText(layer.colour); }},
    {"ON", [](const Layer& layer) { return truthText(layer.on); }},
    {"FROZEN", [](const Layer& layer) { return truthText(layer.frozen); }},
    {"LOCKED", [](const Layer& layer) { return truthText(layer.locked); }},
    {"PLOT", [](const Layer& layer) { return truthText(layer.plottable); }},
    {"LINETYPE", [](const Layer& layer) { return layer.linetype; }},
    {"LINEWEIGHT", [](const Layer& layer) { return std::to_string(layer.lineweight); }},
}};

/// Takes words, operators and quoted texts off the front of an expression.
class Scanner {
public:
    explicit Scanner(std::string_view text) : m_text(text), m_rest(text) { skipBlanks(); }

    bool atEnd() const { return m_rest.empty(); }

    std::string_view word() {
        const auto end = std::find_if_not(m_rest.begin(), m_rest.end(), [](char letter) {
            return std::isalpha(static_cast<unsigned char>(letter)) != 0;
        });
        return take(static_cast<std::size_t>(end - m_rest.begin()));
    }

    bool sign(std::string_view sign) {
        if (m_rest.substr(0, sign.size()) != sign) {
            return false;
        }
        take(sign.size());
        return true;
    }

    std::string_view quoted() {
        const std::size_t end = m_rest.find('"', 1);
        if (m_rest.empty() || m_rest.front() != '"' || end == std::string_view::npos) {
            fail("a text in quotation marks");
        }
        const std::string_view whole = take(end + 1);
        return whole.substr(1, whole.size() - 2);
    }

    [[noreturn]] void fail(const std::string& wanted) const {
        throw ValueError("filter expression: expected " + wanted + " at \"" + std::string(m_rest) +
                         "\" in \"" + std::string(m_text) + "\"");
    }

private:
    std::string_view take(std::size_t length) {
        const std::string_view taken = m_rest.substr(0, length);
        m_rest.remove_prefix(length);
        skipBlanks();
        return taken;
    }

    void skipBlanks() {
        const std::size_t begin = m_rest.find_first_not_of(" \t\r\n");
        m_rest.remove_prefix(std::min(begin, m_rest.size()));
    }

    std::string_view m_text;
    std::string_view m_rest;
};

FieldText scanField(Scanner& scanner) {
    const Scanner before = scanner;
    const std::string_view word = scanner.word();
    for (const Field& field : kFields) {
        if (equalNoCase(field.name, word)) {
            return field.text;
        }
    }
    before.fail("a field (NAME, COLOR, ON, FROZEN, ...)");
}

std::vector<std::string> splitChoices(std::string_view text) {
    std::vector<std::string> choices;
    for (;;) {
        const std::size_t comma = text.find(',');
        choices.emplace_back(text.substr(0, comma));
        if (comma == std::string_view::npos) {
            return choices;
        }
        text.remove_prefix(comma + 1);
    }
}

}  // namespace

LayerFilterExpression::LayerFilterExpression(std::string_view text) {
    Scanner scanner(text);
    if (scanner.atEnd()) {
        return;
    }
    m_alternatives.emplace_back();
    for (;;) {
        Condition condition;
        condition.field = scanField(scanner);
        condition.negated = scanner.sign("!=");
        if (!condition.negated && !scanner.sign("==")) {
            scanner.fail("== or !=");
        }
        condition.choices = splitChoices(scanner.quoted());
        m_alternatives.back().push_back(std::move(condition));
        if (scanner.atEnd()) {
            return;
        }
        const Scanner before = scanner;
        const std::string_view joint = scanner.word();
        if (equalNoCase(joint, "OR")) {
            m_alternatives.emplace_back();
        } else if (!equalNoCase(joint, "AND")) {
            before.fail("AND or OR");
        }
    }
}

bool LayerFilterExpression::matches(const Layer& layer) const {
    return std::any_of(m_alternatives.begin(), m_alternatives.end(), [&layer](const auto& joined) {
        return std::all_of(joined.begin(), joined.end(), [&layer](const Condition& condition) {
            return holds(condition, layer);
        });
    });
}

bool LayerFilterExpression::holds(const Condition& condition, const Layer& layer) {
    const std::string text = condition.field(layer);
    const bool found =
        std::any_of(condition.choices.begin(), condition.choices.end(),
                    [&text](const std::string& choice) { return matchesPattern(choice, text); });
    return found != condition.negated;
}

bool matchesPattern(std::string_view pattern, std::string_view text) {
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t star = std::string_view::npos;  // the last star met, from where to try longer
    std::size_t afterStar = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            afterStar = t;
        } else if (p < pattern.size() &&
                   (pattern[p] == '?' || equalNoCase(pattern.substr(p, 1), text.substr(t, 1)))) {
            ++p;
            ++t;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            t = ++afterStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

}  // namespace workbench::drawing
