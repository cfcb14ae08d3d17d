#include "workbench/drawing/json_text.h"

#include <nlohmann/json.hpp>

#include <cstddef>

namespace workbench::drawing {

namespace {

constexpr std::size_t kWidth = 100;
constexpr std::size_t kIndent = 2;

std::string scalarText(const Value& value) {
    if (value.isBool()) {
        return value.asBool() ? "true" : "false";
    }
    if (value.isInteger()) {
        return std::to_string(value.asInteger());
    }
    if (value.isReal()) {
        return nlohmann::json(value.asReal()).dump();
    }
    if (value.isString()) {
        return nlohmann::json(value.asString())
            .dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    }
    return "null";
}

std::string keyText(const std::string& name) {
    return scalarText(name) + ": ";
}

std::string oneLine(const Value& value) {
    if (!value.isList() && !value.isTable()) {
        return scalarText(value);
    }
    std::string inside;
    if (value.isList()) {
        for (const Value& item : value.asList()) {
            inside += (inside.empty() ? "" : ", ") + oneLine(item);
        }
        return "[" + inside + "]";
    }
    for (const Value::Member& member : value.asTable()) {
        inside += (inside.empty() ? "" : ", ") + keyText(member.name) + oneLine(member.value);
    }
    return "{" + inside + "}";
}

/// The value from the column `used` on of a line that is indented by `indent`.
std::string layOut(const Value& value, std::size_t indent, std::size_t used) {
    std::string line = oneLine(value);
    const bool isLeaf = !value.isList() && !value.isTable();
    if (isLeaf || (indent > 0 && used + line.size() < kWidth) || line.size() == 2) {
        return line;
    }
    const std::string margin(indent + kIndent, ' ');
    std::string text;
    if (value.isList()) {
        for (const Value& item : value.asList()) {
            text += (text.empty() ? "\n" : ",\n") + margin +
                    layOut(item, indent + kIndent, indent + kIndent);
        }
        return "[" + text + "\n" + std::string(indent, ' ') + "]";
    }
    for (const Value::Member& member : value.asTable()) {
        const std::string key = keyText(member.name);
        text += (text.empty() ? "\n" : ",\n") + margin + key +
                layOut(member.value, indent + kIndent, indent + kIndent + key.size());
    }
    return "{" + text + "\n" + std::string(indent, ' ') + "}";
}

}  // namespace

std::string jsonText(const Value& value) {
    return layOut(value, 0, 0) + "\n";
}

}  // namespace workbench::drawing
