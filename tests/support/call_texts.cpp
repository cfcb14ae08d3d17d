#include "tests/support/call_texts.h"

#include <algorithm>

namespace support {

namespace {

using workbench::JournalRecord;
using workbench::Value;

/// What stands between the brackets of a list.
std::string innerText(const Value& list) {
    JournalRecord record;
    record.fields.push_back({"list", list});
    const std::string line = toJsonLine(record);
    const std::size_t begin = line.find('[') + 1;
    return line.substr(begin, line.rfind(']') - begin);
}

}  // namespace

std::vector<std::string> callTexts(const std::vector<JournalRecord>& records,
                                   const std::vector<std::string_view>& names) {
    std::vector<std::string> texts;
    for (const JournalRecord& record : records) {
        if (record.kind != "call")
            continue;
        const std::string& name = record.field("name").asString();
        if (std::find(names.begin(), names.end(), name) != names.end())
            texts.push_back(name + "(" + innerText(record.field("args")) + ")");
    }
    return texts;
}

}  // namespace support
