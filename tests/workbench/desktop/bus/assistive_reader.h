#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

namespace workbench::desktop {

/// One object as the accessibility bus tells it.
struct BusObject {
    QString path;
    std::string name;
    std::string role;  ///< In the bus's words, such as "push button".
    bool focused = false;
    std::vector<BusObject> children;
};

/// Reads the only program on the accessibility bus as an assistive program does, from within it: the
/// event loop goes round while an answer is awaited.
class AssistiveReader final : public QObject {
    Q_OBJECT

public:
    AssistiveReader();

    /// Whether the program has come to the bus.
    bool isConnected();
    /// All that is on show, below the program.
    BusObject read();
    /// The names of those that were announced to have the keyboard, "-" ahead of those that were
    /// announced to have lost it, since the last look.
    std::vector<std::string> takeFocusMoves();

private Q_SLOTS:
    void noteState(const QDBusMessage& signal);

private:
    struct Move {
        QString path;
        bool gained;
    };

    QVariantList call(const QString& service, const QString& path, const char* interface,
                      const char* method, const QVariantList& arguments = {});
    std::string nameOf(const QString& path);
    BusObject readObject(const QString& path);
    QStringList childrenOf(const QString& service, const QString& path, QString* owner = nullptr);

    QDBusConnection m_bus;
    QString m_program;  // its name on the bus; empty until it has come
    std::vector<Move> m_moves;
};

/// Those that have the keyboard, of an object and all below it. One that has it along with a part of
/// its own, as Qt's menus have it with their line, isn't told of beside that part.
std::vector<BusObject> withKeyboard(const BusObject& root);

}  // namespace workbench::desktop
