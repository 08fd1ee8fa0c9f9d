#pragma once

#include <QString>

/// Plays wave files, one at a time: a new sound takes over from the one that is still playing.
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;
    /// Starts the wave file at `nativePath` and returns at once. With `wait` it returns when the sound has
    /// ended. A file that cannot be read, or a machine without sound, is silence and no error.
    virtual void Play(const QString &nativePath, bool wait) = 0;
    /// Sounds will be wanted soon: begins what takes time, and returns at once.
    virtual void WarmUp() {}
};

/// The player of a machine, or a test, that is to stay silent.
class SilentPlayer final : public SoundPlayer
{
public:
    void Play(const QString &, bool) override {}
};
