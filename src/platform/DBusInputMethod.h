#pragma once

#include "platform/InputMethod.h"

#include <memory>
#include <thread>

/// The input method of a Linux desktop: Fcitx 5 or IBus. A worker thread asks it, so that nobody waits longer
/// than wanted, even when a bus hangs.
class DBusInputMethod final : public InputMethod
{
public:
    DBusInputMethod();
    ~DBusInputMethod() override;
    DBusInputMethod(const DBusInputMethod &) = delete;
    DBusInputMethod &operator=(const DBusInputMethod &) = delete;

    QString KnownName() const override;
    QString AskName(std::chrono::milliseconds limit) override;
    void Refresh() override;

    /// For the start, before the application object: when nobody chose an input method for Qt's programs (by
    /// QT_IM_MODULE) and one runs, this program uses that one. Without it only its dead keys would work.
    /// Waits no longer than `limit`.
    void ChooseRunning(std::chrono::milliseconds limit);

private:
    struct Shared;
    static void Work(Shared &shared);
    bool WaitForAnswer(std::chrono::milliseconds limit);

    std::shared_ptr<Shared> m_shared; ///< outlives this as long as the worker is stuck in a call
    std::thread m_worker;
};
