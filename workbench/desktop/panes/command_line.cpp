#include "workbench/desktop/panes/command_line.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>
#include <algorithm>

namespace workbench::desktop {

namespace {

QString restPrompt() {
    return QStringLiteral("Command:");
}

bool isUndoOrRedo(const QKeyEvent& event) {
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo) ||
           (event.modifiers() == Qt::ControlModifier && event.key() == Qt::Key_Y);
}

/// The marks that may stand ahead of a name: transparent, not translated, not redefined.
QString marksOf(const QString& typed) {
    const auto isMark = [](QChar letter) { return QStringLiteral("'_.").contains(letter); };
    const auto end = std::find_if_not(typed.begin(), typed.end(), isMark);
    return typed.left(end - typed.begin());
}

}  // namespace

CommandLine::CommandLine()
    : m_log(new QPlainTextEdit),
      m_prompt(new QLabel(restPrompt())),
      m_input(new QLineEdit) {
    setAccessibleName(QStringLiteral("Commands"));
    m_log->setReadOnly(true);
    m_log->setMaximumBlockCount(kMostLines);
    m_log->setFocusPolicy(Qt::ClickFocus);
    m_log->setAccessibleName(QStringLiteral("Earlier commands"));
    m_prompt->setTextFormat(Qt::PlainText);
    m_prompt->setBuddy(m_input);
    m_input->setAccessibleName(QStringLiteral("Command line"));
    m_input->installEventFilter(this);
    connect(m_input, &QLineEdit::textEdited, this,
            [this](const QString& typed) { offerNames(typed); });

    auto* completer = new QCompleter(&m_offered, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_input->setCompleter(completer);
    completer->popup()->setAccessibleName(QStringLiteral("Names that fit"));
    // The open list gets the keys first. Enter on it is to send the line, not to close the list.
    completer->popup()->installEventFilter(this);

    auto* line = new QHBoxLayout;
    line->addWidget(m_prompt);
    line->addWidget(m_input);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 0, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(m_log);
    layout->addLayout(line);
}

void CommandLine::setPrompt(const QString& prompt) {
    const QString shown = prompt.isEmpty() ? restPrompt() : prompt;
    if (shown != m_prompt->text())
        m_prompt->setText(shown);
}

void CommandLine::echo(const QString& text) {
    m_log->appendPlainText(text.endsWith(QLatin1Char('\n')) ? text.chopped(1) : text);
}

void CommandLine::begin(const QString& text) {
    m_input->setFocus();
    m_input->insert(text);
}

bool CommandLine::eventFilter(QObject* watched, QEvent* event) {
    // With nothing typed there is nothing to take back but the last command.
    if (event->type() == QEvent::ShortcutOverride && m_input->text().isEmpty() &&
        isUndoOrRedo(*static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return true;
    }
    const bool isKey = event->type() == QEvent::KeyPress && m_input->isEnabled();
    if (isKey && handleKey(*static_cast<QKeyEvent*>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

bool CommandLine::handleKey(const QKeyEvent& event) {
    const bool isListOpen = m_input->completer()->popup()->isVisible();
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        enter();
        return true;
    case Qt::Key_Escape:
        cancel();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (isListOpen)
            return false;
        recall(event.key() == Qt::Key_Up ? -1 : 1);
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return !isListOpen && m_onTab && m_onTab(event.key() == Qt::Key_Backtab);
    default:
        return false;
    }
}

void CommandLine::enter() {
    m_input->completer()->popup()->hide();
    const QString line = m_input->text();
    m_input->clear();
    m_isOffering = false;
    remember(line);
    echo(m_prompt->text() + QLatin1Char(' ') + line);
    if (m_onEnter)
        m_onEnter(line);
}

void CommandLine::cancel() {
    m_input->completer()->popup()->hide();
    m_input->clear();
    m_isOffering = false;
    m_place = m_history.size();
    if (m_onCancel)
        m_onCancel();
}

void CommandLine::remember(const QString& line) {
    if (!line.isEmpty() && (m_history.isEmpty() || m_history.back() != line))
        m_history.append(line);
    if (m_history.size() > kMostHistory)
        m_history.removeFirst();
    m_place = m_history.size();
}

void CommandLine::recall(qsizetype step) {
    const qsizetype place = std::clamp<qsizetype>(m_place + step, 0, m_history.size());
    if (place == m_place)
        return;
    if (m_place == m_history.size())
        m_typed = m_input->text();
    m_place = place;
    m_input->setText(place == m_history.size() ? m_typed : m_history[place]);
}

void CommandLine::offerNames(const QString& typed) {
    const QString marks = marksOf(typed);
    if (typed.isEmpty() || (m_isOffering && marks == m_marks)) {
        m_isOffering = !typed.isEmpty();
        return;
    }
    m_isOffering = true;
    m_marks = marks;
    QStringList names = m_names ? m_names() : QStringList();
    for (QString& name : names)
        name.prepend(marks);
    m_offered.setStringList(names);
}

}  // namespace workbench::desktop
