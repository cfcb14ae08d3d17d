#include "workbench/desktop/panes/command_echo.h"

#include "workbench/desktop/look/text.h"

#include <utility>

namespace workbench::desktop {

namespace {

/// A text that was sent, as one line: what cancels is left out, and ends of answers are blanks.
QString asLine(QString sent) {
    sent.remove(QLatin1String("^C")).remove(QLatin1String("^P"));
    for (QChar& letter : sent) {
        if (!letter.isPrint())
            letter = QLatin1Char(' ');
    }
    return sent.simplified();
}

QString textOf(const JournalRecord& record, std::string_view field) {
    const Value& value = record.field(field);
    return value.isString() ? toQt(std::string_view(value.asString())) : QString();
}

}  // namespace

CommandEcho::CommandEcho(Journal& journal, std::function<void(const QString&)> say)
    : m_say(std::move(say)),
      m_listening(journal.addListener([this](const JournalRecord& record) { note(record); })) {}

void CommandEcho::note(const JournalRecord& record) {
    const QString text = textOf(record, "text");
    if (record.kind == "output") {
        m_say(text);
        m_hasSaid = true;
    }
    if (record.kind != "command")
        return;
    if (const QString event = textOf(record, "event"); !event.isEmpty())
        noteEvent(event, text);
    else if (const QString line = asLine(text); !line.isEmpty())
        m_say(QStringLiteral("Command: ") + line);
}

void CommandEcho::noteEvent(const QString& event, const QString& text) {
    if (event == QLatin1String("unknown"))
        m_say(QStringLiteral("Unknown command \"%1\": the workbench has none of that name.")
                  .arg(asLine(text)));
    else if (event == QLatin1String("refused"))
        m_say(QStringLiteral("%1 can't run inside another command.").arg(text));
    else if (event == QLatin1String("failed") && !m_hasSaid)
        m_say(QStringLiteral("%1 could not be done.").arg(text));
    m_hasSaid = m_hasSaid && event != QLatin1String("started");
}

}  // namespace workbench::desktop
