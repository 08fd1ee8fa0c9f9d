#include "platform/SingleInstance.h"

#include "platform/SessionLock.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <utility>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int patience = 500; // milliseconds a second copy gives a first one that is just starting or ending
constexpr int pauseBetweenTries = 20;
constexpr auto activationVariable = "XDG_ACTIVATION_TOKEN";

/// What tells desktop sessions of one person apart. Screens of one display belong together (`:0.1`, `:0`).
QByteArray SessionKey()
{
    QByteArray display = qgetenv("DISPLAY");
    const qsizetype screen = display.lastIndexOf('.');
    if (screen > display.lastIndexOf(':'))
        display.truncate(screen);
    const QByteArray session = QDir::homePath().toUtf8() + '\n' + qgetenv("WAYLAND_DISPLAY") + '\n' + display;
    return QCryptographicHash::hash(session, QCryptographicHash::Sha256).toHex().first(16);
}

bool IsWritableFolder(const QString &path)
{
    const QFileInfo folder(path);
    return !path.isEmpty() && folder.isDir() && folder.isWritable();
}

/// A folder in the one for temporary files that only this person can enter, or an empty text when somebody
/// else has taken its name.
QString PrivateTemporaryFolder()
{
#ifdef Q_OS_UNIX
    const QString path = QDir::tempPath() + u"/quorvex-"_s + QString::number(geteuid());
    QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QFileInfo folder(path);
    const QFile::Permissions others = QFile::WriteGroup | QFile::WriteOther;
    const bool own = !folder.isSymLink() && folder.ownerId() == geteuid() && !(folder.permissions() & others);
    return own && IsWritableFolder(path) ? path : QString();
#else
    return QDir::tempPath(); // each person's own there
#endif
}

} // namespace

QString SingleInstance::DefaultRuntimeFolder()
{
#ifdef Q_OS_UNIX
    // Asking Qt without it would make and report a folder of its own.
    const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
#else
    const QString session = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
#endif
    return IsWritableFolder(session) ? session : PrivateTemporaryFolder();
}

SingleInstance::SingleInstance(const QString &runtimeFolder)
{
    if (!IsWritableFolder(runtimeFolder))
        return;
    const QString name = u"quorvex-"_s + QString::fromLatin1(SessionKey());
#ifdef Q_OS_WIN
    m_serverName = name;
#else
    m_serverName = QDir(runtimeFolder).absoluteFilePath(name + u".socket"_s);
#endif
    m_lock = std::make_unique<SessionLock>(QDir(runtimeFolder).absoluteFilePath(name + u".lock"_s));

    // The first copy may have the lock and not listen yet, or not listen any more and end: try both again.
    QElapsedTimer waited;
    waited.start();
    while (!m_lock->Take()) {
        if (AskFirst() || waited.hasExpired(patience)) {
            m_first = false;
            return;
        }
        QThread::msleep(pauseBetweenTries);
    }
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::AskFirst()
{
    QLocalSocket socket;
    socket.connectToServer(m_serverName);
    if (!socket.waitForConnected(patience))
        return false;
    // Some desktops let a window come forward only with the token that this start was given.
    socket.write("raise " + qgetenv(activationVariable) + '\n');
    socket.flush();
    socket.disconnectFromServer();
    if (socket.state() != QLocalSocket::UnconnectedState)
        socket.waitForDisconnected(patience);
    return true;
}

void SingleInstance::ReceiveRequest()
{
    while (QLocalSocket *const socket = m_server->nextPendingConnection()) {
        const auto finish = [this, socket] {
            const QByteArray request = socket->readAll().trimmed();
            socket->deleteLater();
            if (!request.startsWith("raise"))
                return;
            if (const QByteArray token = request.mid(6); !token.isEmpty())
                qputenv(activationVariable, token);
            m_comeForward();
        };
        if (socket->state() == QLocalSocket::UnconnectedState)
            finish();
        else
            QObject::connect(socket, &QLocalSocket::disconnected, m_server.get(), finish);
    }
}

void SingleInstance::SetOnSecondStart(std::function<void()> comeForward)
{
    m_comeForward = std::move(comeForward);
    if (!m_first || m_server || m_serverName.isEmpty())
        return;
    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(m_serverName); // of a copy that crashed; the lock says that none is alive
    QObject::connect(m_server.get(), &QLocalServer::newConnection, m_server.get(),
                     [this] { ReceiveRequest(); });
    m_server->listen(m_serverName); // without it a second copy still ends, only nothing comes forward
}
