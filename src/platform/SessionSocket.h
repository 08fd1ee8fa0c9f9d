#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <functional>
#include <memory>

class QSocketNotifier;

/// A socket file that takes short messages from other processes of the same person. A message is one
/// datagram: it arrives whole, and nobody waits for anybody. Qt has such sockets only in its network library,
/// which brings a dozen others with it and makes every start longer.
class SessionSocket
{
public:
    using Receiver = std::function<void(const QByteArray &message)>;

    /// Listens at once, and calls `receive` in the event loop. What lies at `nativePath` is replaced: the
    /// caller knows, by a lock, that nobody listens there any more. Where that fails nothing is received.
    SessionSocket(const QString &nativePath, Receiver receive);
    ~SessionSocket();
    Q_DISABLE_COPY_MOVE(SessionSocket)

    /// Hands a message to the process that listens there, without waiting. False when nobody does, or when so
    /// many messages lie there unread that it takes no more.
    static bool Send(const QString &nativePath, const QByteArray &message);

private:
    void ReceiveOne();

    QByteArray m_path;
    Receiver m_receive;
    std::unique_ptr<QSocketNotifier> m_notifier;
    int m_socket = -1;
};
