#include "workbench/core/journal.h"

#include <algorithm>
#include <ostream>

namespace workbench {

const Value& JournalRecord::field(std::string_view name) const {
    static const Value kNil;
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [name](const Field& field) { return field.name == name; });
    return found == fields.end() ? kNil : found->value;
}

std::uint64_t Journal::add(std::string_view kind, std::vector<JournalRecord::Field> fields) {
    if (!m_recording)
        return 0;
    m_records.push_back({++m_lastNumber, m_clock.now(), std::string(kind), std::move(fields)});
    const std::uint64_t number = m_lastNumber;
    tellListeners();
    return number;
}

Journal::Listening Journal::addListener(Listener listener) {
    auto owned = std::make_shared<const Listener>(std::move(listener));
    m_listeners.push_back(owned);
    return Listening(std::move(owned));
}

void Journal::tellListeners() {
    std::erase_if(m_listeners, [](const auto& listener) { return listener.expired(); });
    if (m_listeners.empty())
        return;
    // Copies, because a listener may add records and listeners and take records.
    const JournalRecord record = m_records.back();
    const std::vector<std::weak_ptr<const Listener>> listeners = m_listeners;
    for (const std::weak_ptr<const Listener>& listener : listeners) {
        if (const auto living = listener.lock())
            (*living)(record);
    }
}

void Journal::complete(std::uint64_t number, std::string_view field, Value value) {
    const auto record = std::lower_bound(
        m_records.begin(), m_records.end(), number,
        [](const JournalRecord& left, std::uint64_t right) { return left.number < right; });
    if (record == m_records.end() || record->number != number)
        return;
    for (JournalRecord::Field& present : record->fields) {
        if (present.name == field) {
            present.value = std::move(value);
            return;
        }
    }
    record->fields.push_back({std::string(field), std::move(value)});
}

std::vector<JournalRecord> Journal::take(std::string_view kind) {
    flush();
    std::vector<JournalRecord> taken;
    if (kind.empty()) {
        taken.swap(m_records);
        return taken;
    }
    const auto rest =
        std::stable_partition(m_records.begin(), m_records.end(),
                              [kind](const JournalRecord& record) { return record.kind != kind; });
    std::move(rest, m_records.end(), std::back_inserter(taken));
    m_records.erase(rest, m_records.end());
    return taken;
}

void Journal::flush() {
    if (m_stream == nullptr)
        return;
    for (const JournalRecord& record : m_records) {
        if (record.number <= m_lastWritten)
            continue;
        *m_stream << toJsonLine(record) << '\n';
    }
    m_lastWritten = m_lastNumber;
    m_stream->flush();
}

}  // namespace workbench
