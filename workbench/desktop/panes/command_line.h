#pragma once

#include <QStringList>
#include <QStringListModel>
#include <QWidget>
#include <functional>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace workbench::desktop {

/// Where commands are typed: a line with the prompt ahead and completion, above it what was said
/// before. The arrow keys walk through the earlier lines, Escape cancels.
class CommandLine final : public QWidget {
public:
    static constexpr int kMostLines = 500;    ///< The log forgets older ones.
    static constexpr int kMostHistory = 100;  ///< Lines that can be called back.

    CommandLine();

    /// Told each line that is entered, without its end; an empty one too, which is an answer.
    void setOnEnter(std::function<void(const QString&)> entered) { m_onEnter = std::move(entered); }
    /// Told that Escape was pressed.
    void setOnCancel(std::function<void()> cancelled) { m_onCancel = std::move(cancelled); }
    /// Takes Tab, or with shift held Tab backwards; false leaves the key to the window.
    void setOnTab(std::function<bool(bool backwards)> taken) { m_onTab = std::move(taken); }
    /// Gives the names of commands and variables, asked for whenever a word is begun.
    void setNames(std::function<QStringList()> names) { m_names = std::move(names); }

    /// What the running command asks for; empty for nothing.
    void setPrompt(const QString& prompt);
    /// Adds a line, or several, to what was said.
    void echo(const QString& text);
    /// Goes on typing with a text that was typed elsewhere: the line takes the focus.
    void begin(const QString& text);
    QLineEdit& input() { return *m_input; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool handleKey(const QKeyEvent& event);
    void enter();
    void cancel();
    void remember(const QString& line);
    void recall(qsizetype step);
    void offerNames(const QString& typed);

    QPlainTextEdit* m_log;
    QLabel* m_prompt;
    QLineEdit* m_input;
    QStringListModel m_offered;
    QStringList m_history;      // oldest first
    qsizetype m_place = 0;      // in the history; its size: the line being typed
    QString m_typed;            // before the history was walked
    QString m_marks;            // ahead of the names on offer
    bool m_isOffering = false;  // the names were asked for since the line was empty
    std::function<void(const QString&)> m_onEnter;
    std::function<void()> m_onCancel;
    std::function<bool(bool)> m_onTab;
    std::function<QStringList()> m_names;
};

}  // namespace workbench::desktop
