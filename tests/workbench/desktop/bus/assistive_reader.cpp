#include "tests/workbench/desktop/bus/assistive_reader.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusReply>
#include <utility>

namespace workbench::desktop {

namespace {

constexpr const char* kAccessible = "org.a11y.atspi.Accessible";
constexpr const char* kEvents = "org.a11y.atspi.Event.Object";
constexpr quint32 kFocused = 1U << 12;  // in the first word of an object's states

QDBusConnection accessibilityBus() {
    const QDBusReply<QString> address =
        QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
            QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
            QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
    return QDBusConnection::connectToBus(address.value(), QStringLiteral("reader"));
}

void appendFocused(const BusObject& root, std::vector<BusObject>& found) {
    const std::size_t before = found.size();
    for (const BusObject& child : root.children)
        appendFocused(child, found);
    if (root.focused && found.size() == before)
        found.push_back(root);
}

}  // namespace

AssistiveReader::AssistiveReader() : m_bus(accessibilityBus()) {
    m_bus.connect(QString(), QString(), QLatin1String(kEvents), QStringLiteral("StateChanged"),
                  this, SLOT(noteState(QDBusMessage)));
    call(QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/registry"),
         "org.a11y.atspi.Registry", "RegisterEvent",
         {QStringLiteral("object:state-changed:focused")});
}

QVariantList AssistiveReader::call(const QString& service, const QString& path,
                                   const char* interface, const char* method,
                                   const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, QLatin1String(interface),
                                                          QLatin1String(method));
    message.setArguments(arguments);
    const QDBusPendingCall pending = m_bus.asyncCall(message);
    while (!pending.isFinished())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    return pending.reply().arguments();
}

QStringList AssistiveReader::childrenOf(const QString& service, const QString& path,
                                        QString* owner) {
    QStringList paths;
    const QVariantList answer = call(service, path, kAccessible, "GetChildren");
    if (answer.isEmpty())
        return paths;
    const auto list = answer.front().value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        QString program;
        QDBusObjectPath child;
        list.beginStructure();
        list >> program >> child;
        list.endStructure();
        paths.append(child.path());
        if (owner != nullptr)
            *owner = program;
    }
    list.endArray();
    return paths;
}

bool AssistiveReader::isConnected() {
    childrenOf(QStringLiteral("org.a11y.atspi.Registry"),
               QStringLiteral("/org/a11y/atspi/accessible/root"), &m_program);
    return !m_program.isEmpty();
}

BusObject AssistiveReader::read() {
    return readObject(QStringLiteral("/org/a11y/atspi/accessible/root"));
}

std::string AssistiveReader::nameOf(const QString& path) {
    const QVariantList answer = call(m_program, path, "org.freedesktop.DBus.Properties", "Get",
                                     {QLatin1String(kAccessible), QStringLiteral("Name")});
    if (answer.isEmpty())
        return {};
    return answer.front().value<QDBusVariant>().variant().toString().toStdString();
}

BusObject AssistiveReader::readObject(const QString& path) {
    BusObject object{.path = path, .name = nameOf(path), .role = {}, .children = {}};
    const QVariantList role = call(m_program, path, kAccessible, "GetRoleName");
    object.role = role.isEmpty() ? std::string() : role.front().toString().toStdString();
    const QVariantList state = call(m_program, path, kAccessible, "GetState");
    if (!state.isEmpty()) {
        const auto words = qdbus_cast<QList<quint32>>(state.front());
        object.focused = !words.isEmpty() && (words.front() & kFocused) != 0;
    }
    for (const QString& child : childrenOf(m_program, path))
        object.children.push_back(readObject(child));
    return object;
}

void AssistiveReader::noteState(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (arguments.size() > 1 && arguments[0].toString() == QLatin1String("focused"))
        m_moves.push_back({signal.path(), arguments[1].toInt() != 0});
}

std::vector<std::string> AssistiveReader::takeFocusMoves() {
    std::vector<std::string> names;
    for (const Move& move : std::exchange(m_moves, {}))
        names.push_back((move.gained ? "" : "-") + nameOf(move.path));
    return names;
}

std::vector<BusObject> withKeyboard(const BusObject& root) {
    std::vector<BusObject> found;
    appendFocused(root, found);
    return found;
}

}  // namespace workbench::desktop
