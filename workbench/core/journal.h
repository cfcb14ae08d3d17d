#pragma once

#include "workbench/base/value.h"
#include "workbench/core/clock.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// One entry of the journal.
struct JournalRecord {
    /// A named value of a record.
    struct Field {
        std::string name;
        Value value;
    };

    std::uint64_t number = 0;   ///< ascending from 1 over the life of the journal
    std::int64_t time = 0;      ///< milliseconds of the workbench's clock
    std::string kind;           ///< "call", "message", "command", "var", "item", "control", ...
    std::vector<Field> fields;  ///< in the order of their kind

    /// The value of a field; nil if the record has none of that name.
    const Value& field(std::string_view name) const;
};

/// What happened, in order: every host call of the product, every message its windows receive,
/// every command text, every visible change. The kinds and their fields stand in docs/formats.md.
class Journal {
public:
    using Listener = std::function<void(const JournalRecord&)>;

    /// Owns a listener, which ends with it; an empty one owns none. May outlive the journal.
    class Listening {
    public:
        Listening() = default;
        Listening(Listening&&) noexcept = default;
        Listening& operator=(Listening&&) noexcept = default;
        ~Listening() = default;

    private:
        friend class Journal;
        explicit Listening(std::shared_ptr<const Listener> listener)
            : m_listener(std::move(listener)) {}

        std::shared_ptr<const Listener> m_listener;  // the journal's own pointer to it is weak
    };

    explicit Journal(const Clock& clock) : m_clock(clock) {}

    /// Switches recording on (the state at start) or off; off, `add` costs nothing.
    void setRecording(bool recording) { m_recording = recording; }
    bool isRecording() const { return m_recording; }

    /// Adds a record and returns its number; 0 while recording is off.
    std::uint64_t add(std::string_view kind, std::vector<JournalRecord::Field> fields);
    /// Sets a field of an earlier record that has not been taken yet; others are left alone.
    void complete(std::uint64_t number, std::string_view field, Value value);

    /// All records that have not been taken, in order.
    const std::vector<JournalRecord>& records() const { return m_records; }
    /// Hands out and forgets the untaken records of a kind, or of all kinds if `kind` is empty.
    std::vector<JournalRecord> take(std::string_view kind = {});

    /// Writes each untaken and each later record to a stream as a JSON line, when taken or flushed.
    /// The stream must outlive the journal. Null ends it.
    void writeTo(std::ostream* stream) { m_stream = stream; }
    /// Writes what has not been written yet.
    void flush();

    /// Tells a listener each new record, at once, behind the listeners that are older. A listener
    /// may add records and listeners, and end any listener, itself too, while it is told.
    [[nodiscard]] Listening addListener(Listener listener);

private:
    void tellListeners();

    const Clock& m_clock;
    bool m_recording = true;
    std::uint64_t m_lastNumber = 0;
    std::uint64_t m_lastWritten = 0;  // number of the last record written to the stream
    std::vector<JournalRecord> m_records;
    std::ostream* m_stream = nullptr;                        // not owned; null: nothing is written
    std::vector<std::weak_ptr<const Listener>> m_listeners;  // oldest first
};

/// A record as one line of JSON, without the line end: {"t":…,"kind":…,fields…}.
std::string toJsonLine(const JournalRecord& record);

}  // namespace workbench
