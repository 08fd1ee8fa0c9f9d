#pragma once

#include "platform/AudioOutput.h"

#include <array>
#include <memory>

/// The one voice of the player: what the device is fed with. A new sound takes over within one and a half
/// milliseconds, in which the old one fades out, for a wave that is cut off in its swing is heard as a click.
class SoundVoice
{
public:
    using Clip = std::shared_ptr<const AudioOutput::Samples>;

    /// Lets `clip` take over; null is silence.
    void Start(Clip clip);
    /// Fills `samples` with what comes next, silence behind the end of the clip.
    void Render(std::span<qint16> samples);
    bool IsPlaying() const;

private:
    std::array<qint16, 64> m_fade{}; ///< the end of the sound that was taken over
    std::size_t m_fadePosition = m_fade.size();
    Clip m_clip;
    std::size_t m_position = 0;
};
