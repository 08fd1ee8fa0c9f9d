#pragma once

#include <QByteArray>
#include <QtEndian>
#include <vector>

/// The bytes of a wave file with the samples as they stand, one element a sample of whatever size T has.
template <typename T>
QByteArray MakeWaveBytes(const std::vector<T> &samples, int rate, int channels = 1)
{
    QByteArray bytes;
    const auto append = [&bytes]<typename Number>(Number number) {
        const Number little = qToLittleEndian(number);
        bytes.append(reinterpret_cast<const char *>(&little), sizeof(little));
    };
    const auto dataSize = static_cast<quint32>(samples.size() * sizeof(T));
    const auto frameSize = static_cast<quint16>(sizeof(T) * static_cast<std::size_t>(channels));
    bytes.append("RIFF");
    append(quint32{36 + dataSize});
    bytes.append("WAVEfmt ");
    append(quint32{16});
    append(quint16{1});
    append(static_cast<quint16>(channels));
    append(static_cast<quint32>(rate));
    append(static_cast<quint32>(rate * frameSize));
    append(frameSize);
    append(quint16{8 * sizeof(T)});
    bytes.append("data");
    append(dataSize);
    for (const T sample : samples)
        append(sample);
    return bytes;
}
