#include "platform/DBusInputMethod.h"

#include "platform/ImeBuses.h"

#include <QThread>
#include <condition_variable>
#include <mutex>
#include <utility>

struct DBusInputMethod::Shared
{
    std::mutex mutex;
    std::condition_variable asked;
    std::condition_variable answered;
    quint64 questions = 0;
    quint64 answers = 0; ///< up to which question
    bool wantsModule = false;
    bool ending = false;
    bool ended = false;
    QString name;
    QByteArray module;
};

DBusInputMethod::DBusInputMethod()
    : m_shared(std::make_shared<Shared>())
{
    // Before there is an application, Qt takes the first thread that it sees for the main one.
    QThread::currentThread();
    m_worker = std::thread([shared = m_shared] { Work(*shared); });
}

DBusInputMethod::~DBusInputMethod()
{
    constexpr std::chrono::milliseconds patience{200};
    std::unique_lock lock(m_shared->mutex);
    m_shared->ending = true;
    m_shared->asked.notify_one();
    const bool ended = m_shared->answered.wait_for(lock, patience, [this] { return m_shared->ended; });
    lock.unlock();
    if (ended)
        m_worker.join();
    else
        m_worker.detach();
}

QString DBusInputMethod::KnownName() const
{
    const std::lock_guard lock(m_shared->mutex);
    return m_shared->name;
}

QString DBusInputMethod::AskName(std::chrono::milliseconds limit)
{
    WaitForAnswer(limit);
    return KnownName();
}

void DBusInputMethod::Refresh()
{
    WaitForAnswer(std::chrono::milliseconds::zero());
}

void DBusInputMethod::ChooseRunning(std::chrono::milliseconds limit)
{
    if (qEnvironmentVariableIsSet("QT_IM_MODULE"))
        return;
    {
        const std::lock_guard lock(m_shared->mutex);
        m_shared->wantsModule = true;
    }
    if (!WaitForAnswer(limit))
        return;
    const std::lock_guard lock(m_shared->mutex);
    if (!m_shared->module.isEmpty())
        qputenv("QT_IM_MODULE", m_shared->module);
}

bool DBusInputMethod::WaitForAnswer(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_shared->mutex);
    const quint64 question = ++m_shared->questions;
    m_shared->asked.notify_one();
    return m_shared->answered.wait_for(lock, limit,
                                       [this, question] { return m_shared->answers >= question; });
}

void DBusInputMethod::Work(Shared &shared)
{
    ImeBuses buses;
    std::unique_lock lock(shared.mutex);
    for (;;) {
        shared.asked.wait(lock, [&] { return shared.ending || shared.questions > shared.answers; });
        if (shared.ending)
            break;
        const quint64 question = shared.questions; // the answer serves all that asked so far
        const bool wantsModule = std::exchange(shared.wantsModule, false);
        lock.unlock();
        const QByteArray module = wantsModule ? buses.RunningModule() : QByteArray();
        const std::optional<QString> name = wantsModule ? std::nullopt : buses.ActiveName();
        lock.lock();
        if (wantsModule)
            shared.module = module;
        shared.name = name.value_or(shared.name);
        shared.answers = question;
        shared.answered.notify_all();
    }
    shared.ended = true;
    shared.answered.notify_all();
}
