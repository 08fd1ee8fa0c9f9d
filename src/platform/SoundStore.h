#pragma once

#include "platform/SoundVoice.h"

#include <QCache>
#include <QDateTime>
#include <QString>

/// Keeps the sounds played last, decoded, in a bounded piece of memory. A file that was replaced is read
/// anew.
class SoundStore
{
public:
    struct Bounds
    {
        qint64 file = 8 << 20;       ///< bytes; a larger file is not played
        qsizetype memory = 24 << 20; ///< bytes of decoded samples
    };

    SoundStore(AudioOutput &output, const Bounds &bounds);
    /// The sound in the file, or null when it cannot be read or is no sound.
    SoundVoice::Clip Find(const QString &nativePath);

private:
    struct Entry
    {
        qint64 size;
        QDateTime time;
        SoundVoice::Clip clip;
    };
    AudioOutput &m_output;
    Bounds m_bounds;
    QCache<QString, Entry> m_entries;
};
