#include "platform/SingleInstance.h"

#include "platform/SessionLock.h"
#include "platform/SessionSocket.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <unistd.h>
#include <utility>

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

/// Whether only this person can write there, and so nobody else put a lock or a socket in it.
bool IsOwnFolder(const QString &path)
{
    const QFileInfo folder(path);
    const QFile::Permissions others = QFile::WriteGroup | QFile::WriteOther;
    return IsWritableFolder(path) && folder.ownerId() == geteuid() && !(folder.permissions() & others);
}

/// A folder in the one for temporary files that only this person can enter, or an empty text when somebody
/// else has taken its name.
QString PrivateTemporaryFolder()
{
    const QString path = QDir::tempPath() + u"/quorvex-"_s + QString::number(geteuid());
    QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return !QFileInfo(path).isSymLink() && IsOwnFolder(path) ? path : QString();
}

} // namespace

QString SingleInstance::DefaultRuntimeFolder()
{
    // Asking Qt without it would make and report a folder of its own.
    const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return IsOwnFolder(session) ? session : PrivateTemporaryFolder();
}

SingleInstance::SingleInstance(const QString &runtimeFolder)
{
    if (!IsWritableFolder(runtimeFolder))
        return;
    const QString name = u"quorvex-"_s + QString::fromLatin1(SessionKey());
    m_socketPath = QDir(runtimeFolder).absoluteFilePath(name + u".socket"_s);
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

bool SingleInstance::AskFirst() const
{
    // Some desktops let a window come forward only with the token that this start was given.
    return SessionSocket::Send(m_socketPath, "raise " + qgetenv(activationVariable) + '\n');
}

void SingleInstance::Answer(const QByteArray &request) const
{
    if (!request.startsWith("raise"))
        return;
    if (const QByteArray token = request.trimmed().mid(6); !token.isEmpty())
        qputenv(activationVariable, token);
    m_comeForward();
}

void SingleInstance::SetOnSecondStart(std::function<void()> comeForward)
{
    m_comeForward = std::move(comeForward);
    if (!m_first || m_socket || m_socketPath.isEmpty())
        return;
    // Where it does not listen a second copy still ends, only nothing comes forward.
    m_socket =
        std::make_unique<SessionSocket>(m_socketPath, [this](const QByteArray &request) { Answer(request); });
}
