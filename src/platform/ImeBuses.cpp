#include "platform/ImeBuses.h"

#include "platform/InputMethod.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QStandardPaths>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

const auto sessionConnection = u"quorvex-ime-session"_s;
const auto ibusConnection = u"quorvex-ime-ibus"_s;
const auto fcitxService = u"org.fcitx.Fcitx5"_s;

QDBusMessage Call(const QDBusConnection &bus, QDBusMessage question, const QVariantList &arguments = {})
{
    question.setArguments(arguments);
    question.setAutoStartService(false);
    return bus.call(question, QDBus::Block, ImeBuses::Patience);
}

QDBusMessage AskController(const QDBusConnection &bus, const QString &method)
{
    return Call(bus, QDBusMessage::createMethodCall(fcitxService, u"/controller"_s,
                                                    u"org.fcitx.Fcitx.Controller1"_s, method));
}

bool IsSilence(const QDBusMessage &reply)
{
    const QDBusError::ErrorType error = QDBusError(reply).type();
    return error == QDBusError::NoReply || error == QDBusError::Timeout || error == QDBusError::TimedOut;
}

/// The machine's identity, or an empty text: asked for one where there is none, as in a bare container, the
/// bus library ends the program.
QString MachineId()
{
    for (const QString &path : {u"/var/lib/dbus/machine-id"_s, u"/etc/machine-id"_s}) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            return QString::fromLatin1(file.readLine(64).trimmed());
    }
    return {};
}

/// The files in which IBus may have left its address: one a display, the Wayland one first, as IBus does it.
QStringList IBusAddressFiles()
{
    if (qEnvironmentVariableIsSet("IBUS_ADDRESS_FILE"))
        return {qEnvironmentVariable("IBUS_ADDRESS_FILE")};
    const QString start = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                          u"/ibus/bus/"_s + MachineId() + u'-';
    QStringList files;
    if (const QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY"); !wayland.isEmpty())
        files += start + u"unix-"_s + wayland;
    const QString display = qEnvironmentVariable("DISPLAY");
    if (const qsizetype colon = display.indexOf(u':'); colon >= 0) {
        const QString host = colon > 0 ? display.left(colon) : u"unix"_s;
        files += start + host + u'-' + display.mid(colon + 1).section(u'.', 0, 0);
    }
    return files;
}

QString IBusAddress()
{
    if (qEnvironmentVariableIsSet("IBUS_ADDRESS"))
        return qEnvironmentVariable("IBUS_ADDRESS");
    for (const QString &name : IBusAddressFiles()) {
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.startsWith("IBUS_ADDRESS="))
                return QString::fromUtf8(line.mid(13).trimmed());
        }
    }
    return {};
}

QString SessionAddress()
{
    // Without an address libdbus would start a bus of its own.
    QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty())
        return address;
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s;
    return QFileInfo::exists(socket) ? u"unix:path="_s + socket : QString();
}

bool HasFcitxPlugin()
{
    const QString folder = QLibraryInfo::path(QLibraryInfo::PluginsPath) + u"/platforminputcontexts/"_s;
    return QFileInfo::exists(folder + u"libfcitx5platforminputcontextplugin.so"_s);
}

} // namespace

struct ImeBuses::Answer
{
    enum class Kind { Absent, Silent, Named };
    Kind kind;
    QString name;
};

ImeBuses::~ImeBuses()
{
    for (auto connection = m_addresses.keyBegin(); connection != m_addresses.keyEnd(); ++connection)
        QDBusConnection::disconnectFromBus(*connection);
}

std::optional<QString> ImeBuses::ActiveName()
{
    using Ask = Answer (ImeBuses::*)();
    // Fcitx 5 also answers in the name of IBus, but only to who types through it.
    Ask order[] = {&ImeBuses::AskFcitx, &ImeBuses::AskIBus};
    if (qgetenv("QT_IM_MODULE") == "ibus")
        std::swap(order[0], order[1]);
    bool silent = false;
    for (const Ask ask : order) {
        const Answer answer = (this->*ask)();
        if (answer.kind == Answer::Kind::Named)
            return answer.name;
        silent = silent || answer.kind == Answer::Kind::Silent;
    }
    return silent ? std::nullopt : std::optional<QString>(QString());
}

QByteArray ImeBuses::RunningModule()
{
    if (const auto bus = SessionBus()) {
        const QDBusMessage question = QDBusMessage::createMethodCall(
            u"org.freedesktop.DBus"_s, u"/"_s, u"org.freedesktop.DBus"_s, u"NameHasOwner"_s);
        if (Call(*bus, question, {fcitxService}).arguments().value(0).toBool())
            return HasFcitxPlugin() ? "fcitx" : "ibus"; // which Fcitx 5 speaks as well
    }
    return IBusBus() ? "ibus" : "";
}

ImeBuses::Answer ImeBuses::AskFcitx()
{
    const auto bus = SessionBus();
    if (!bus)
        return {Answer::Kind::Absent, {}};
    const QDBusMessage reply = AskController(*bus, u"CurrentInputMethod"_s);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return {IsSilence(reply) ? Answer::Kind::Silent : Answer::Kind::Absent, {}};
    const QString id = reply.arguments().value(0).toString();
    // The list of names is long, and plain layouts need none.
    const bool named = !ImeDisplayName(id, id).isEmpty();
    return {Answer::Kind::Named, named ? ImeDisplayName(id, FcitxName(*bus, id)) : QString()};
}

QString ImeBuses::FcitxName(const QDBusConnection &bus, const QString &id)
{
    if (!m_fcitxNames.contains(id)) {
        const QVariant list = AskController(bus, u"AvailableInputMethods"_s).arguments().value(0);
        if (list.canConvert<QDBusArgument>()) {
            const auto rows = list.value<QDBusArgument>();
            rows.beginArray();
            while (!rows.atEnd()) {
                QString rowId;
                QString name;
                rows.beginStructure();
                rows >> rowId >> name;
                rows.endStructure();
                m_fcitxNames.insert(rowId, name);
            }
            rows.endArray();
        }
    }
    return m_fcitxNames.value(id);
}

ImeBuses::Answer ImeBuses::AskIBus()
{
    const auto bus = IBusBus();
    if (!bus)
        return {Answer::Kind::Absent, {}};
    const QDBusMessage question =
        QDBusMessage::createMethodCall(u"org.freedesktop.IBus"_s, u"/org/freedesktop/IBus"_s,
                                       u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    const QDBusMessage reply = Call(*bus, question, {u"org.freedesktop.IBus"_s, u"GlobalEngine"_s});
    if (reply.type() != QDBusMessage::ReplyMessage)
        return {IsSilence(reply) ? Answer::Kind::Silent : Answer::Kind::Absent, {}};
    QVariant value = reply.arguments().value(0);
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    if (!value.canConvert<QDBusArgument>())
        return {Answer::Kind::Absent, {}};
    const auto engine = value.value<QDBusArgument>();
    if (!engine.currentSignature().startsWith(u"(sa{sv}ss"_s))
        return {Answer::Kind::Absent, {}};
    QString type;
    QVariantMap attachments;
    QString id;
    QString name;
    engine.beginStructure();
    engine >> type >> attachments >> id >> name;
    engine.endStructure();
    return {Answer::Kind::Named, ImeDisplayName(id, name)};
}

std::optional<QDBusConnection> ImeBuses::SessionBus()
{
    return Connect(SessionAddress(), sessionConnection);
}

std::optional<QDBusConnection> ImeBuses::IBusBus()
{
    return Connect(IBusAddress(), ibusConnection);
}

std::optional<QDBusConnection> ImeBuses::Connect(const QString &address, const QString &name)
{
    if (m_addresses.contains(name)) {
        const QDBusConnection open(name);
        if (open.isConnected() && m_addresses.value(name) == address)
            return open;
        QDBusConnection::disconnectFromBus(name);
        m_addresses.remove(name);
    }
    if (address.isEmpty())
        return std::nullopt;
    m_addresses.insert(name, address);
    const QDBusConnection made = QDBusConnection::connectToBus(address, name);
    return made.isConnected() ? std::optional(made) : std::nullopt;
}
