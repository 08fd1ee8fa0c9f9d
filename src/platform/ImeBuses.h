#pragma once

#include <QHash>
#include <QString>
#include <optional>

class QDBusConnection;

/// Talks to the input methods of a Linux desktop over D-Bus, never starting one: Fcitx 5 on the session bus,
/// IBus on a bus of its own. Every call may block up to `Patience` or, when a bus itself hangs, longer, so
/// this is for a worker thread.
class ImeBuses
{
public:
    static constexpr int Patience = 500; ///< milliseconds for each question

    ImeBuses() = default;
    ~ImeBuses();
    Q_DISABLE_COPY_MOVE(ImeBuses)

    /// What people call the active input method; empty for a plain layout or when none runs. Nothing when one
    /// runs but does not answer.
    std::optional<QString> ActiveName();

    /// The input context plug-in of Qt, as in QT_IM_MODULE, for the input method that runs; empty for none.
    QByteArray RunningModule();

private:
    struct Answer;
    Answer AskFcitx();
    Answer AskIBus();
    QString FcitxName(const QDBusConnection &bus, const QString &id);
    std::optional<QDBusConnection> SessionBus();
    std::optional<QDBusConnection> IBusBus();
    std::optional<QDBusConnection> Connect(const QString &address, const QString &name);

    QHash<QString, QString> m_addresses;  ///< of the connections by name
    QHash<QString, QString> m_fcitxNames; ///< by id
};
