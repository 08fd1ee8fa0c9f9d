#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>
#include <QProcess>
#include <QThread>
#include <mutex>
#include <optional>

/// A message bus of its own with one service on it, which answers every object's methods with what the test
/// laid down, or keeps silent. It answers in a thread of its own, so a test may wait for it.
class FakeBus
{
public:
    explicit FakeBus(const QString &service)
        : m_name(QString::number(quintptr(this)))
    {
        m_daemon.startCommand(QStringLiteral("dbus-daemon --session --nofork --nopidfile --print-address"));
        while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead()) {
        }
        m_address = m_daemon.readLine().trimmed();
        QDBusConnection connection = QDBusConnection::connectToBus(QString::fromLatin1(m_address), m_name);
        connection.registerVirtualObject(QStringLiteral("/"), &m_object, QDBusConnection::SubPath);
        if (!connection.registerService(service))
            qFatal("no message bus");
        m_object.moveToThread(&m_thread);
        m_thread.start();
    }

    ~FakeBus()
    {
        QDBusConnection(m_name).unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
        QDBusConnection::disconnectFromBus(m_name);
        m_thread.quit();
        m_thread.wait();
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(FakeBus)

    QByteArray Address() const { return m_address; }

    /// What the method returns from now on; nothing: no answer at all.
    void Answer(const QString &method, const std::optional<QVariant> &answer)
    {
        const std::lock_guard lock(m_object.mutex);
        m_object.answers[method] = answer;
    }

private:
    struct Object final : QDBusVirtualObject
    {
        QString introspect(const QString &) const override { return {}; }
        bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
        {
            const std::lock_guard lock(mutex);
            if (!answers.contains(message.member()))
                return false;
            if (const auto &answer = answers[message.member()])
                connection.send(message.createReply(*answer));
            return true;
        }
        std::mutex mutex;
        QHash<QString, std::optional<QVariant>> answers;
    };

    QString m_name;
    QByteArray m_address;
    QProcess m_daemon;
    QThread m_thread;
    Object m_object;
};
