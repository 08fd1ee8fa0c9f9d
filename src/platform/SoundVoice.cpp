#include "platform/SoundVoice.h"

#include <algorithm>

void SoundVoice::Start(Clip clip)
{
    if (IsPlaying()) {
        std::array<qint16, std::tuple_size_v<decltype(m_fade)>> fade{};
        Render(fade);
        for (int n = 0, count = static_cast<int>(fade.size()); n < count; ++n) {
            qint16 &sample = fade[static_cast<std::size_t>(n)];
            sample = static_cast<qint16>(sample * (count - 1 - n) / count);
        }
        m_fade = fade;
        m_fadePosition = 0;
    }
    m_clip = std::move(clip);
    m_position = 0;
}

void SoundVoice::Render(std::span<qint16> samples)
{
    const auto feed = [&samples](std::span<const qint16> from, std::size_t &position) {
        const std::size_t count = std::min(samples.size(), from.size() - position);
        std::ranges::copy(from.subspan(position, count), samples.begin());
        position += count;
        samples = samples.subspan(count);
    };
    feed(m_fade, m_fadePosition);
    if (m_clip)
        feed(*m_clip, m_position);
    std::ranges::fill(samples, qint16{0});
}

bool SoundVoice::IsPlaying() const
{
    return m_fadePosition < m_fade.size() || (m_clip && m_position < m_clip->size());
}
