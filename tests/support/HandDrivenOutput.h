#pragma once

#include "platform/AudioOutput.h"

#include <QList>
#include <atomic>
#include <mutex>
#include <semaphore>

/// A device whose sound the test draws by hand, and which can be made as bad as devices are. A "wave file"
/// for it says the value of all its samples and how many they are: "1000 300".
class HandDrivenOutput final : public AudioOutput
{
public:
    bool Open(const Source &source) override
    {
        ++tries;
        if (stuck)
            letGo.acquire();
        if (broken)
            return false;
        const std::lock_guard lock(m_mutex);
        m_source = source;
        lost = false;
        return true;
    }
    void Close() override
    {
        const std::lock_guard lock(m_mutex);
        m_source = nullptr;
        ++closed;
    }
    bool IsLost() override
    {
        ++asked;
        return lost;
    }
    AudioOutput::Samples Decode(const QByteArray &wave) override
    {
        const QList<QByteArray> words = wave.split(' ');
        return AudioOutput::Samples(words.value(1).toULong(), words.value(0).toShort());
    }

    /// All that was heard so far, and a bit more.
    AudioOutput::Samples Listen()
    {
        const std::lock_guard lock(m_mutex);
        if (m_source) {
            AudioOutput::Samples next(64, 12345);
            m_source(next);
            m_heard.insert(m_heard.end(), next.begin(), next.end());
        }
        return m_heard;
    }

    std::atomic<int> tries = 0;
    std::atomic<int> closed = 0;
    std::atomic<int> asked = 0; ///< once for every sound, while open
    std::atomic<bool> stuck = false;
    std::atomic<bool> broken = false;
    std::atomic<bool> lost = false;
    std::binary_semaphore letGo{0};

private:
    std::mutex m_mutex;
    Source m_source;
    AudioOutput::Samples m_heard;
};

/// The values of long equal stretches, in order: the sounds heard, without silence and the short fade between
/// two.
inline QList<int> Stretches(const AudioOutput::Samples &samples)
{
    QList<int> values;
    std::size_t length = 0;
    for (std::size_t n = 0; n < samples.size(); ++n) {
        length = n > 0 && samples[n] == samples[n - 1] ? length + 1 : 1;
        if (length == 8 && samples[n] != 0)
            values.append(samples[n]);
    }
    return values;
}
