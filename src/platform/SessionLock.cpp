#include "platform/SessionLock.h"

#ifdef Q_OS_UNIX

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

SessionLock::SessionLock(const QString &nativePath)
    : m_file(open(QFile::encodeName(nativePath).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600))
{
}

SessionLock::~SessionLock()
{
    if (m_file >= 0)
        close(m_file);
}

bool SessionLock::Take()
{
    return m_file < 0 || flock(m_file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

#else

SessionLock::SessionLock(const QString &nativePath)
    : m_file(nativePath)
{
    m_file.setStaleLockTime(0); // only a dead owner makes it stale, not its age
}

SessionLock::~SessionLock() = default;

bool SessionLock::Take()
{
    return m_file.tryLock(0) || m_file.error() != QLockFile::LockFailedError;
}

#endif
