#include "platform/SdlSoundPlayer.h"

#include "platform/SdlAudioOutput.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <utility>

namespace {

using SteadyTime = std::chrono::steady_clock::time_point;

SteadyTime SteadyNow()
{
    return std::chrono::steady_clock::now();
}

struct SoundRequest
{
    QString path;
    quint64 number;
    SteadyTime latestStart;
};

} // namespace

struct SdlSoundPlayer::Shared
{
    Shared(std::shared_ptr<AudioOutput> audioOutput, const Limits &playerLimits)
        : limits(playerLimits)
        , output(std::move(audioOutput))
    {
    }

    const Limits limits;
    std::shared_ptr<AudioOutput> output; ///< until the worker takes it

    std::mutex mutex; ///< never held while anything is asked of the system; guards all that follows
    std::condition_variable work;    ///< the worker has something to do
    std::condition_variable changed; ///< a sound has started or ended, or the worker has
    std::optional<SoundRequest> request;
    bool warmUp = false;
    bool quit = false;
    bool workerEnded = false;
    std::optional<SteadyTime> busySince; ///< the worker is asking something of the system

    // Requests are numbered; each settles when its sound has ended, was taken over or was left out.
    quint64 lastNumber = 0;
    quint64 started = 0;
    quint64 settled = 0;
    SoundVoice voice;
    SteadyTime lastHeard; ///< the voice was playing then
    std::chrono::milliseconds length{0};

    SteadyTime SilentSince() const { return voice.IsPlaying() ? SteadyNow() : lastHeard; }
    bool HasWork() const { return quit || warmUp || request; }
    void Render(std::span<qint16> samples);
    void Begin(const SoundRequest &asked, SoundVoice::Clip clip);
};

/// While it lives the lock is open and the worker may ask of the system what it likes.
class SdlSoundPlayer::Outside
{
public:
    Outside(Shared &shared, std::unique_lock<std::mutex> &lock)
        : m_shared(shared)
        , m_lock(lock)
    {
        m_shared.busySince = SteadyNow();
        m_lock.unlock();
    }
    ~Outside()
    {
        m_lock.lock();
        m_shared.busySince.reset();
    }
    Outside(const Outside &) = delete;
    Outside &operator=(const Outside &) = delete;

private:
    Shared &m_shared;
    std::unique_lock<std::mutex> &m_lock;
};

void SdlSoundPlayer::Shared::Render(std::span<qint16> samples)
{
    const std::lock_guard lock(mutex);
    const bool wasPlaying = voice.IsPlaying();
    voice.Render(samples);
    if (!wasPlaying)
        return;
    lastHeard = SteadyNow();
    if (!voice.IsPlaying()) {
        settled = started;
        changed.notify_all();
    }
}

void SdlSoundPlayer::Shared::Begin(const SoundRequest &asked, SoundVoice::Clip clip)
{
    const bool sounds = clip && SteadyNow() <= asked.latestStart;
    length = std::chrono::milliseconds(sounds ? clip->size() * 1000 / AudioOutput::SampleRate : 0);
    voice.Start(sounds ? std::move(clip) : nullptr);
    started = asked.number;
    settled = sounds ? asked.number - 1 : asked.number;
    lastHeard = SteadyNow();
    changed.notify_all();
}

SdlSoundPlayer::SdlSoundPlayer()
    : SdlSoundPlayer(std::make_shared<SdlAudioOutput>(), Limits())
{
}

SdlSoundPlayer::SdlSoundPlayer(std::shared_ptr<AudioOutput> output, const Limits &limits)
    : m_shared(std::make_shared<Shared>(std::move(output), limits))
{
}

SdlSoundPlayer::~SdlSoundPlayer()
{
    if (!m_worker.joinable())
        return;
    bool ended = false;
    {
        std::unique_lock lock(m_shared->mutex);
        m_shared->quit = true;
        m_shared->work.notify_one();
        const SteadyTime since = m_shared->busySince.value_or(SteadyNow());
        ended = m_shared->changed.wait_until(lock, since + m_shared->limits.exit,
                                             [this] { return m_shared->workerEnded; });
    }
    if (ended)
        m_worker.join();
    else
        m_worker.detach(); // stuck in a sound server that does not answer; it holds what it needs
}

void SdlSoundPlayer::StartWorker()
{
    if (m_worker.joinable())
        return;
    try {
        m_worker = std::thread([shared = m_shared] { Work(*shared); });
    } catch (const std::system_error &) {
        // No thread to be had: this sound is silent, the next one tries again.
    }
}

void SdlSoundPlayer::WarmUp()
{
    StartWorker();
    const std::lock_guard lock(m_shared->mutex);
    m_shared->warmUp = true;
    m_shared->work.notify_one();
}

void SdlSoundPlayer::Play(const QString &nativePath, bool wait)
{
    StartWorker();
    Shared &shared = *m_shared;
    const SteadyTime latestStart = SteadyNow() + shared.limits.freshness;
    std::unique_lock lock(shared.mutex);
    const quint64 number = ++shared.lastNumber;
    shared.request = SoundRequest{nativePath, number, latestStart};
    lock.unlock();
    shared.work.notify_one();
    if (!wait)
        return;
    lock.lock();
    const bool begun = shared.changed.wait_until(lock, latestStart, [&] { return shared.started >= number; });
    if (begun) {
        shared.changed.wait_for(lock, shared.length + shared.limits.overrun,
                                [&] { return shared.settled >= number; });
    }
}

void SdlSoundPlayer::Work(Shared &shared)
{
    std::shared_ptr<AudioOutput> output = std::move(shared.output);
    Serve(shared, *output);
    output.reset(); // here, for it may take long as well
    const std::lock_guard lock(shared.mutex);
    shared.workerEnded = true;
    shared.changed.notify_all();
}

void SdlSoundPlayer::Serve(Shared &shared, AudioOutput &output)
{
    SoundStore store(output, shared.limits.store);
    bool open = false;
    std::optional<SteadyTime> nextTry;

    const auto makeReady = [&] {
        if (open && output.IsLost()) {
            output.Close();
            open = false;
        }
        if (open || (nextTry && SteadyNow() < *nextTry))
            return open;
        open = output.Open([&shared](std::span<qint16> samples) { shared.Render(samples); });
        nextTry = open ? std::nullopt : std::optional(SteadyNow() + shared.limits.retry);
        return open;
    };

    std::unique_lock lock(shared.mutex);
    while (!shared.quit) {
        if (!open) {
            shared.work.wait(lock, [&] { return shared.HasWork(); });
        } else if (!shared.work.wait_until(lock, shared.SilentSince() + shared.limits.silence,
                                           [&] { return shared.HasWork(); })) {
            if (SteadyNow() < shared.SilentSince() + shared.limits.silence)
                continue;
            const Outside outside(shared, lock);
            output.Close();
            open = false;
            continue;
        }
        if (shared.quit)
            break;
        const std::optional<SoundRequest> request = std::exchange(shared.request, std::nullopt);
        shared.warmUp = false;
        SoundVoice::Clip clip;
        {
            const Outside outside(shared, lock);
            const bool ready = makeReady();
            if (ready && request)
                clip = store.Find(request->path);
        }
        if (!request)
            shared.lastHeard = SteadyNow();
        else if (!shared.request)
            shared.Begin(*request, std::move(clip));
    }

    if (open) {
        const Outside outside(shared, lock);
        output.Close();
    }
}
