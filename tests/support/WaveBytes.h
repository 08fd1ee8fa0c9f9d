#pragma once

#include "platform/BinaryFields.h"

#include <vector>

/// The bytes of a wave file with the samples as they stand, one element a sample of whatever size T has.
template <typename T>
QByteArray MakeWaveBytes(const std::vector<T> &samples, int rate, int channels = 1)
{
    const auto dataSize = static_cast<quint32>(samples.size() * sizeof(T));
    const auto frameSize = static_cast<quint16>(sizeof(T) * static_cast<std::size_t>(channels));
    QByteArray bytes;
    const auto append = [&bytes](auto... numbers) { (BinaryFields::Append(bytes, numbers), ...); };
    bytes.append("RIFF");
    append(quint32{36 + dataSize});
    bytes.append("WAVEfmt ");
    append(quint32{16}, quint16{1}, static_cast<quint16>(channels), static_cast<quint32>(rate),
           static_cast<quint32>(rate * frameSize), frameSize, quint16{8 * sizeof(T)});
    bytes.append("data");
    append(dataSize);
    for (const T sample : samples)
        append(sample);
    return bytes;
}
