#include "workbench/base/json_parser.h"

#include "workbench/base/input_error.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <numeric>
#include <system_error>
#include <utility>

namespace workbench {

namespace {

/// How far the library has read. It reads one character ahead only after a number, and that
/// character, even a line end, still counts as standing on the number's line.
struct ReadPosition {
    int line = 1;
    char last = '\0';

    void take(char character) {
        if (last == '\n')
            ++line;
        last = character;
    }
};

/// Hands the text to the library character by character, and keeps the position up to date.
class CountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, ReadPosition* position) : m_at(at), m_position(position) {}

    reference operator*() const { return *m_at; }
    CountingIterator& operator++() {
        m_position->take(*m_at++);
        return *this;
    }
    CountingIterator operator++(int) {
        CountingIterator before = *this;
        ++*this;
        return before;
    }
    bool operator==(const CountingIterator& other) const { return m_at == other.m_at; }
    bool operator!=(const CountingIterator& other) const { return m_at != other.m_at; }

private:
    const char* m_at;
    ReadPosition* m_position;  // not owned
};

bool startsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// The library's text without its own place, which is given apart, and without the bytes that it
/// last read, which may be no text at all.
std::string plainReason(const std::string& text) {
    std::size_t begin = 0;
    for (const std::string_view before : {"syntax error ", "] "}) {
        const std::size_t found = text.find(before);
        if (found != std::string::npos) {
            begin = found + before.size();
            break;
        }
    }
    const std::size_t end = text.find("; last read: ", begin);
    return "not valid JSON: " + text.substr(begin, end - begin);
}

/// Builds the tree from the library's events.
class TreeBuilder {
public:
    TreeBuilder(std::string_view text, const std::string& place, const ReadPosition& position)
        : m_text(text),
          m_place(place),
          m_position(position) {}

    JsonValue takeRoot() { return std::move(m_root); }

    bool null() {
        add(JsonValue::Kind::Null);
        return true;
    }
    bool boolean(bool value) {
        add(JsonValue::Kind::Boolean).boolean = value;
        return true;
    }
    bool number_integer(std::int64_t value) { return addNumber(static_cast<double>(value)); }
    bool number_unsigned(std::uint64_t value) { return addNumber(static_cast<double>(value)); }
    bool number_float(double value, const std::string&) { return addNumber(value); }
    bool string(std::string& value) {
        add(JsonValue::Kind::String).text = std::move(value);
        return true;
    }
    bool binary(nlohmann::json::binary_t&) { return false; }  // only in the library's other formats
    bool start_object(std::size_t) { return open(JsonValue::Kind::Object); }
    bool start_array(std::size_t) { return open(JsonValue::Kind::Array); }
    bool key(std::string& name) {
        m_open.back()->names.push_back(std::move(name));
        return true;
    }
    bool end_object() {
        refuseDoubleNames(*m_open.back());
        return end_array();
    }
    bool end_array() {
        m_open.pop_back();
        return true;
    }
    bool parse_error(std::size_t read, const std::string&, const nlohmann::json::exception& error) {
        throw InputError(placeOfByte(read), plainReason(error.what()));
    }

private:
    JsonValue& add(JsonValue::Kind kind);
    bool addNumber(double value) {
        add(JsonValue::Kind::Number).number = value;
        return true;
    }
    bool open(JsonValue::Kind kind);
    void refuseDoubleNames(const JsonValue& object) const;
    std::string placeOfByte(std::size_t read) const;
    std::string placeOfLine(int line) const { return m_place + ":" + std::to_string(line); }

    std::string_view m_text;
    const std::string& m_place;
    const ReadPosition& m_position;
    JsonValue m_root;
    std::vector<JsonValue*> m_open;  // innermost last; an open value's parent doesn't grow
};

JsonValue& TreeBuilder::add(JsonValue::Kind kind) {
    JsonValue& value = m_open.empty() ? m_root : m_open.back()->items.emplace_back();
    value.kind = kind;
    value.line = m_position.line;
    return value;
}

bool TreeBuilder::open(JsonValue::Kind kind) {
    if (m_open.size() == static_cast<std::size_t>(kMaxJsonDepth)) {
        throw InputError(placeOfLine(m_position.line),
                         "nested deeper than " + std::to_string(kMaxJsonDepth) + " levels");
    }
    m_open.push_back(&add(kind));
    return true;
}

void TreeBuilder::refuseDoubleNames(const JsonValue& object) const {
    std::vector<std::size_t> byName(object.names.size());
    std::iota(byName.begin(), byName.end(), std::size_t{0});
    const auto nameOf = [&object](std::size_t index) -> const std::string& {
        return object.names[index];
    };
    std::stable_sort(byName.begin(), byName.end(), [&nameOf](std::size_t left, std::size_t right) {
        return nameOf(left) < nameOf(right);
    });
    const auto twin = std::adjacent_find(
        byName.begin(), byName.end(),
        [&nameOf](std::size_t left, std::size_t right) { return nameOf(left) == nameOf(right); });
    if (twin != byName.end()) {
        const std::size_t second = *std::next(twin);
        throw InputError(placeOfLine(object.items[second].line),
                         "the key \"" + nameOf(second) + "\" stands twice in one object");
    }
}

std::string TreeBuilder::placeOfByte(std::size_t read) const {
    const std::size_t at = read == 0 ? 0 : std::min(read - 1, m_text.size());
    const std::string_view before = m_text.substr(0, at);
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const std::size_t lineStart = before.rfind('\n') + 1;  // npos + 1 is 0, the first line
    const std::string_view onLine = before.substr(lineStart);
    const auto column = 1 + std::count_if(onLine.begin(), onLine.end(), startsCharacter);
    return m_place + ":" + std::to_string(line) + ":" + std::to_string(column);
}

}  // namespace

JsonValue parseJson(std::string_view text, const std::string& place) {
    ReadPosition position;
    TreeBuilder builder(text, place, position);
    nlohmann::json::sax_parse(CountingIterator(text.data(), &position),
                              CountingIterator(text.data() + text.size(), &position), &builder);
    return builder.takeRoot();
}

std::string readWholeFile(const std::filesystem::path& file) {
    const auto refuse = [&file](const std::string& reason) {
        throw InputError(file.string(), reason);
    };
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored))
        refuse("is a folder, not a file");
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        refuse("cannot be opened: " + std::generic_category().message(errno));
    std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (stream.bad())
        refuse("cannot be read");
    return bytes;
}

}  // namespace workbench
