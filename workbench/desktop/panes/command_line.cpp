#include "workbench/desktop/panes/command_line.h"

#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringListModel>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kMostLines = 500;
constexpr int kMostEarlier = 100;

}  // namespace

CommandLine::CommandLine()
    : m_log(new QPlainTextEdit),
      m_prompt(new QLabel(QStringLiteral("Command:"))),
      m_input(new QLineEdit) {
    m_log->setReadOnly(true);
    m_log->setMaximumBlockCount(kMostLines);
    m_log->setFocusPolicy(Qt::ClickFocus);
    m_log->setAccessibleName(QStringLiteral("Earlier commands"));
    m_input->setAccessibleName(QStringLiteral("Command line"));
    m_input->installEventFilter(this);
    m_prompt->setBuddy(m_input);
    auto* completer = new QCompleter(new QStringListModel(this), this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_input->setCompleter(completer);
    connect(m_input, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (text.size() == 1)
            offerNames();
    });

    auto* line = new QHBoxLayout;
    line->addWidget(m_prompt);
    line->addWidget(m_input);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 0, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(m_log);
    layout->addLayout(line);
}

void CommandLine::offerNames() {
    auto* model = static_cast<QStringListModel*>(m_input->completer()->model());
    model->setStringList(m_names ? m_names() : QStringList());
}

void CommandLine::setPrompt(const QString& prompt) {
    const QString shown = prompt.isEmpty() ? QStringLiteral("Command:") : prompt;
    if (shown != m_prompt->text())
        m_prompt->setText(shown);
}

void CommandLine::echo(const QString& line) {
    m_log->appendPlainText(line);
}

void CommandLine::begin(const QString& text) {
    m_input->setFocus();
    m_input->insert(text);
}

bool CommandLine::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_input || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        enter();
        return true;
    case Qt::Key_Escape:
        cancel();
        return true;
    case Qt::Key_Up:
        recall(-1);
        return true;
    case Qt::Key_Down:
        recall(1);
        return true;
    default:
        return false;
    }
}

void CommandLine::enter() {
    const QString text = m_input->text();
    m_input->clear();
    if (!text.isEmpty() && (m_history.isEmpty() || m_history.back() != text))
        m_history.append(text);
    if (m_history.size() > kMostEarlier)
        m_history.removeFirst();
    m_place = m_history.size();
    echo(m_prompt->text() + QLatin1Char(' ') + text);
    if (m_onEnter)
        m_onEnter(text);
}

void CommandLine::cancel() {
    m_input->clear();
    m_place = m_history.size();
    if (m_onCancel)
        m_onCancel();
}

void CommandLine::recall(int step) {
    const qsizetype place = std::clamp<qsizetype>(m_place + step, 0, m_history.size());
    if (place == m_place)
        return;
    if (m_place == m_history.size())
        m_typed = m_input->text();
    m_place = place;
    m_input->setText(place == m_history.size() ? m_typed : m_history[place]);
}

}  // namespace workbench::desktop
