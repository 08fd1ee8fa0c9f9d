#include "WaveFile.h"

#include <cmath>
#include <cstdint>
#include <fstream>
#include <string>

namespace {

void AppendNumber(std::string &bytes, std::uint32_t value, int size)
{
    for (int n = 0; n < size; ++n)
        bytes.push_back(static_cast<char>(value >> (8 * n) & 0xFF));
}

} // namespace

bool WriteWaveFile(const std::filesystem::path &path, const Samples &samples)
{
    const auto dataSize = static_cast<std::uint32_t>(2 * samples.size());
    std::string bytes = "RIFF";
    AppendNumber(bytes, 36 + dataSize, 4);
    bytes += "WAVEfmt ";
    AppendNumber(bytes, 16, 4);
    AppendNumber(bytes, 1, 2); // plain samples
    AppendNumber(bytes, 1, 2); // one channel
    AppendNumber(bytes, SampleRate, 4);
    AppendNumber(bytes, 2 * SampleRate, 4);
    AppendNumber(bytes, 2, 2);
    AppendNumber(bytes, 16, 2);
    bytes += "data";
    AppendNumber(bytes, dataSize, 4);
    for (const double sample : samples)
        AppendNumber(bytes, static_cast<std::uint32_t>(std::lround(sample * 32767)), 2);

    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return !file.fail();
}
