#pragma once

#include <QString>
#include <QtGlobal>

#ifndef Q_OS_UNIX
#include <QLockFile>
#endif

/// A lock file that one process at a time holds; the system opens the lock when its holder ends, however. It
/// waits for no disk, unlike QLockFile on Unix, which writes its file through: that alone can take longer
/// than the rest of the program's start.
class SessionLock
{
public:
    /// `nativePath` lies in a folder that only one person writes in. The file stays when the lock is given
    /// up.
    explicit SessionLock(const QString &nativePath);
    ~SessionLock();
    Q_DISABLE_COPY_MOVE(SessionLock)

    /// Tries to take the lock, without waiting. False only when somebody else holds it, not where no lock can
    /// be made at all.
    bool Take();

private:
#ifdef Q_OS_UNIX
    int m_file = -1;
#else
    QLockFile m_file;
#endif
};
