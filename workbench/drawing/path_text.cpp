#include "workbench/drawing/path_text.h"

#include <algorithm>
#include <cstddef>

namespace workbench::drawing {

namespace {

[[noreturn]] void fail(std::string_view path, const std::string& reason) {
    throw PathError("path \"" + std::string(path) + "\": " + reason);
}

/// Reads the bracket at `at` and moves `at` behind it.
std::string bracketStep(std::string_view path, std::size_t& at) {
    const bool quoted = at + 1 < path.size() && (path[at + 1] == '"' || path[at + 1] == '\'');
    const std::size_t begin = at + (quoted ? 2 : 1);
    const std::string closing = quoted ? std::string(1, path[at + 1]) + "]" : "]";
    const std::size_t end = path.find(closing, begin);
    if (end == std::string_view::npos || end == begin) {
        fail(path, "a bracket holds a text in quotation marks or a number");
    }
    at = end + closing.size();
    return std::string(path.substr(begin, end - begin));
}

}  // namespace

std::vector<std::string> parsePath(std::string_view text) {
    std::vector<std::string> steps;
    std::size_t at = 0;
    while (at < text.size()) {
        if (text[at] == '[') {
            steps.push_back(bracketStep(text, at));
            continue;
        }
        if (!steps.empty()) {
            if (text[at] != '.') {
                fail(text,
                     "expected a dot or a bracket at \"" + std::string(text.substr(at)) + "\"");
            }
            ++at;
        }
        const std::size_t end = std::min(text.find_first_of(".[", at), text.size());
        if (end == at) {
            fail(text, "a step is empty");
        }
        steps.emplace_back(text.substr(at, end - at));
        at = end;
    }
    if (steps.empty()) {
        fail(text, "it is empty");
    }
    return steps;
}

}  // namespace workbench::drawing
