#include "session/screen.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusReply>
#include <QVariant>
#include <utility>

namespace session {

QDBusArgument& operator<<(QDBusArgument& argument, const Reference& reference) {
    argument.beginStructure();
    argument << reference.service << reference.path;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Reference& reference) {
    argument.beginStructure();
    argument >> reference.service >> reference.path;
    argument.endStructure();
    return argument;
}

}  // namespace session

Q_DECLARE_METATYPE(session::Reference)

namespace session {

namespace {

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString kText = QStringLiteral("org.a11y.atspi.Text");
const QString kTable = QStringLiteral("org.a11y.atspi.Table");
const QString kValue = QStringLiteral("org.a11y.atspi.Value");

constexpr int kMostWait = 10'000;  // milliseconds
/// Of a longer list not all children are looked at.
constexpr int kMostChildren = 150;

/// The states that scripts name, by their numbers in the protocol.
constexpr std::pair<int, const char*> kStates[] = {
    {1, "active"},     {4, "checked"},  {7, "editable"}, {10, "expanded"},   {11, "focusable"},
    {12, "focused"},   {16, "modal"},   {20, "pressed"}, {22, "selectable"}, {23, "selected"},
    {24, "sensitive"}, {25, "showing"}, {39, "default"}, {41, "checkable"},  {43, "read-only"},
};

QVariant Call(const QDBusConnection& bus, const Reference& at, const QString& interface,
              const QString& method, const QVariantList& arguments = {}) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(at.service, at.path.path(), interface, method);
    message.setArguments(arguments);
    const QDBusMessage answer = bus.call(message, QDBus::Block, kMostWait);
    const bool answered = answer.type() == QDBusMessage::ReplyMessage;
    return answered && !answer.arguments().isEmpty() ? answer.arguments().constFirst() : QVariant();
}

QVariant Property(const QDBusConnection& bus, const Reference& at, const QString& interface,
                  const QString& name) {
    const QVariant value = Call(bus, at, QStringLiteral("org.freedesktop.DBus.Properties"),
                                QStringLiteral("Get"), {interface, name});
    return value.value<QDBusVariant>().variant();
}

QStringList StatesOf(const QDBusConnection& bus, const Reference& at) {
    const auto words =
        qdbus_cast<QList<uint>>(Call(bus, at, kAccessible, QStringLiteral("GetState")));
    QStringList states;
    for (const auto& [number, name] : kStates) {
        const bool set = number / 32 < words.size() && (words.at(number / 32) >> number % 32) & 1;
        if (set) states.append(QString::fromLatin1(name));
    }
    return states;
}

}  // namespace

QString Thing::InWords() const {
    QString words = QStringLiteral("%1 \"%2\" %3").arg(role, name, states.join(u' '));
    if (!value.isEmpty()) words += QStringLiteral(" = \"%1\"").arg(value);
    return words;
}

bool Screen::Connect() {
    qDBusRegisterMetaType<Reference>();
    qDBusRegisterMetaType<QList<Reference>>();
    const Reference launcher{QStringLiteral("org.a11y.Bus"),
                             QDBusObjectPath(QStringLiteral("/org/a11y/bus"))};
    const QString address = Call(QDBusConnection::sessionBus(), launcher, launcher.service,
                                 QStringLiteral("GetAddress"))
                                .toString();
    if (address.isEmpty()) return false;
    bus_ = QDBusConnection::connectToBus(address, QStringLiteral("screen"));
    return bus_.isConnected();
}

bool Screen::Find(qint64 process) {
    const Reference registry{QStringLiteral("org.a11y.atspi.Registry"),
                             QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root"))};
    for (const Reference& program : Children(registry)) {
        if (bus_.interface()->servicePid(program.service).value() == process) program_ = program;
    }
    return program_.has_value();
}

QList<Thing> Screen::InSight() const {
    QList<Thing> things;
    if (!program_) return things;
    for (const Reference& window : Children(*program_))
        Collect(window, things);
    return things;
}

void Screen::Collect(const Reference& at, QList<Thing>& things) const {
    Thing thing;
    thing.states = StatesOf(bus_, at);
    if (!thing.states.contains(QStringLiteral("showing"))) return;
    thing.role = Call(bus_, at, kAccessible, QStringLiteral("GetRoleName")).toString();
    thing.name = Property(bus_, at, kAccessible, QStringLiteral("Name")).toString();
    thing.value = Value(at, thing.role);
    things.append(thing);
    for (const Reference& child : SomeChildren(at))
        Collect(child, things);
}

QList<Reference> Screen::Children(const Reference& at) const {
    return qdbus_cast<QList<Reference>>(Call(bus_, at, kAccessible, QStringLiteral("GetChildren")));
}

QList<Reference> Screen::SomeChildren(const Reference& at) const {
    const int count = Property(bus_, at, kAccessible, QStringLiteral("ChildCount")).toInt();
    if (count <= kMostChildren) return Children(at);
    QList<Reference> some;
    for (int index = 0; index < kMostChildren; ++index) {
        some.append(qdbus_cast<Reference>(
            Call(bus_, at, kAccessible, QStringLiteral("GetChildAtIndex"), {index})));
    }
    const auto rows =
        qdbus_cast<QList<int>>(Call(bus_, at, kTable, QStringLiteral("GetSelectedRows")));
    const int columns = Property(bus_, at, kTable, QStringLiteral("NColumns")).toInt();
    for (const int row : rows.mid(0, kMostChildren / std::max(1, columns))) {
        for (int column = 0; column < columns; ++column) {
            some.append(qdbus_cast<Reference>(
                Call(bus_, at, kTable, QStringLiteral("GetAccessibleAt"), {row, column})));
        }
    }
    return some;
}

QString Screen::Value(const Reference& at, const QString& role) const {
    if (role == QLatin1String("text") || role == QLatin1String("password text")) {
        return Call(bus_, at, kText, QStringLiteral("GetText"), {0, -1}).toString();
    }
    if (role == QLatin1String("combo box")) return SelectedRow(at);
    if (role == QLatin1String("spin button") || role == QLatin1String("progress bar")) {
        return Property(bus_, at, kValue, QStringLiteral("CurrentValue")).toString();
    }
    return {};
}

/// Of a combo box, whose list may be closed.
QString Screen::SelectedRow(const Reference& at) const {
    for (const Reference& child : Children(at)) {
        const auto rows =
            qdbus_cast<QList<int>>(Call(bus_, child, kTable, QStringLiteral("GetSelectedRows")));
        if (rows.isEmpty()) continue;
        const auto row = qdbus_cast<Reference>(
            Call(bus_, child, kTable, QStringLiteral("GetAccessibleAt"), {rows.constFirst(), 0}));
        return Property(bus_, row, kAccessible, QStringLiteral("Name")).toString();
    }
    return {};
}

}  // namespace session
