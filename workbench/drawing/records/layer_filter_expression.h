#pragma once

#include "workbench/drawing/records/layer.h"

#include <string>
#include <string_view>
#include <vector>

namespace workbench::drawing {

/// A layer filter's description of layers, as `NAME=="A-*,B-*" AND FROZEN=="False"`. Conditions
/// are joined by AND, and alternatives of such joined conditions by OR. The fields are NAME,
/// DESCRIPTION, COLOR, ON, FROZEN, LOCKED, PLOT, LINETYPE and LINEWEIGHT; `!=` turns a condition
/// round. A text is compared without regard to case; `*` stands for any letters, `?` for one, and
/// a comma separates choices.
class LayerFilterExpression {
public:
    /// Throws `ValueError` for a text that is no such description. An empty text shows no layer.
    explicit LayerFilterExpression(std::string_view text);

    bool matches(const Layer& layer) const;

private:
    struct Condition {
        std::string (*field)(const Layer& layer) = nullptr;
        bool negated = false;
        std::vector<std::string> choices;
    };

    static bool holds(const Condition& condition, const Layer& layer);

    std::vector<std::vector<Condition>> m_alternatives;  // of conditions that hold together
};

/// True if the pattern with its `*` and `?` covers the whole text, without regard to case.
bool matchesPattern(std::string_view pattern, std::string_view text);

}  // namespace workbench::drawing
