#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace workbench::desktop {

/// Where commands are typed: a line with the prompt ahead and completion, above it what was typed
/// before. The arrow keys walk through the earlier lines, Escape cancels.
class CommandLine final : public QWidget {
public:
    CommandLine();

    /// A line was entered, without its end; and Escape was pressed.
    void setOnEnter(std::function<void(const QString&)> entered) { m_onEnter = std::move(entered); }
    void setOnCancel(std::function<void()> cancelled) { m_onCancel = std::move(cancelled); }
    /// The names to complete, asked for when the first letter is typed.
    void setNames(std::function<QStringList()> names) { m_names = std::move(names); }

    /// What the running command asks for; empty for nothing.
    void setPrompt(const QString& prompt);
    /// Adds a line to what was said.
    void echo(const QString& line);
    /// Begins a line with a text that was typed elsewhere.
    void begin(const QString& text);
    QLineEdit& input() { return *m_input; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void enter();
    void cancel();
    void recall(int step);
    void offerNames();

    QPlainTextEdit* m_log;
    QLabel* m_prompt;
    QLineEdit* m_input;
    QStringList m_history;  // oldest first
    qsizetype m_place = 0;  // in the history; its size: the line being typed
    QString m_typed;        // before the history was walked
    std::function<void(const QString&)> m_onEnter;
    std::function<void()> m_onCancel;
    std::function<QStringList()> m_names;
};

}  // namespace workbench::desktop
