#pragma once

#include <QByteArray>
#include <functional>
#include <span>
#include <vector>

/// A device that sounds come out of: one channel of 16-bit samples. It belongs to one thread, and each of its
/// calls may take as long as a sound server or a disk likes.
class AudioOutput
{
public:
    static constexpr int SampleRate = 44100;
    using Samples = std::vector<qint16>;
    /// Fills the whole span with what is to be heard next; called from a thread of the device.
    using Source = std::function<void(std::span<qint16>)>;

    virtual ~AudioOutput() = default;
    /// False when there is nothing to play on. After true, `source` is called until Close() returns.
    virtual bool Open(const Source &source) = 0;
    virtual void Close() = 0;
    /// True when the open device has gone, as an unplugged headset does.
    virtual bool IsLost() = 0;
    /// The samples of a wave file's bytes; none when they make no sense.
    virtual Samples Decode(const QByteArray &wave) = 0;
};
