#include "platform/SoundStore.h"

#include <QFile>
#include <QFileInfo>

SoundStore::SoundStore(AudioOutput &output, const Bounds &bounds)
    : m_output(output)
    , m_bounds(bounds)
    , m_entries(bounds.memory)
{
}

SoundVoice::Clip SoundStore::Find(const QString &nativePath)
{
    const QFileInfo info(nativePath);
    if (!info.isFile() || info.size() > m_bounds.file)
        return nullptr;
    const qint64 size = info.size();
    const QDateTime time = info.lastModified();
    if (const Entry *known = m_entries.object(nativePath);
        known && known->size == size && known->time == time)
        return known->clip;

    QFile file(nativePath);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    AudioOutput::Samples samples = m_output.Decode(file.read(m_bounds.file));
    constexpr qsizetype entryCost = 256; // so that a great many empty ones are bounded too
    const qsizetype cost = entryCost + static_cast<qsizetype>(samples.size() * sizeof(qint16));
    const SoundVoice::Clip clip =
        samples.empty() ? nullptr : std::make_shared<const AudioOutput::Samples>(std::move(samples));
    m_entries.insert(nativePath, new Entry{size, time, clip}, cost);
    return clip;
}
