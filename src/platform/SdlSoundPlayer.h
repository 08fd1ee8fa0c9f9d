#pragma once

#include "platform/SoundPlayer.h"
#include "platform/SoundStore.h"

#include <chrono>
#include <thread>

/// Plays through SDL2 without ever holding up the caller: the device is opened, and files are read, by a
/// worker thread that starts with the first sound. However long a sound server or a disk takes, calling
/// Play() costs some microseconds, and a sound that could not start in time is left out, for late is worse
/// than silent.
class SdlSoundPlayer final : public SoundPlayer
{
public:
    struct Limits
    {
        std::chrono::milliseconds freshness{250};  ///< a sound starts within this time or not at all
        std::chrono::milliseconds silence{10'000}; ///< then the device, which costs power, is closed
        std::chrono::milliseconds retry{10'000};   ///< until a device that could not be opened is tried again
        std::chrono::milliseconds overrun{500};    ///< how much longer than its length a sound is waited for
        std::chrono::milliseconds exit{300};       ///< a worker that is stuck for so long is left behind
        SoundStore::Bounds store;
    };

    SdlSoundPlayer();
    SdlSoundPlayer(std::shared_ptr<AudioOutput> output, const Limits &limits);
    /// Cuts off what still plays.
    ~SdlSoundPlayer() override;
    SdlSoundPlayer(const SdlSoundPlayer &) = delete;
    SdlSoundPlayer &operator=(const SdlSoundPlayer &) = delete;

    void Play(const QString &nativePath, bool wait) override;
    void WarmUp() override;

private:
    struct Shared;
    class Outside;
    static void Work(Shared &shared);
    static void Serve(Shared &shared, AudioOutput &output);
    void StartWorker();

    std::shared_ptr<Shared> m_shared; ///< outlives the player as long as the worker is stuck in the system
    std::thread m_worker;
};
