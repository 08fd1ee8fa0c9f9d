#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

class SessionLock;
class SessionSocket;

/// Lets one copy of the program run for each person and display, whatever folder it was started from. A
/// second copy asks the first to come forward and is to end at once. A copy that crashed or was killed leaves
/// nothing behind that keeps the next one from starting.
class SingleInstance
{
public:
    /// `runtimeFolder` is where the lock and the socket lie: the desktop session's folder for such things, or
    /// a private one in the folder for temporary files where there is none that only this person can write.
    explicit SingleInstance(const QString &runtimeFolder = DefaultRuntimeFolder());
    ~SingleInstance();
    Q_DISABLE_COPY_MOVE(SingleInstance)

    /// Whether this copy may go on. Where no lock can be made at all it may: better two copies than none.
    bool IsFirst() const { return m_first; }

    /// What the first copy does when another one was started; runs in the event loop. It listens from here
    /// on: a copy that was started earlier asks again for half a second.
    void SetOnSecondStart(std::function<void()> comeForward);

    static QString DefaultRuntimeFolder();

private:
    bool AskFirst() const;
    void Answer(const QByteArray &request) const;

    QString m_socketPath;
    std::unique_ptr<SessionLock> m_lock;
    std::function<void()> m_comeForward;
    std::unique_ptr<SessionSocket> m_socket;
    bool m_first = true;
};
