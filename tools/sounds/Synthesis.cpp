#include "Synthesis.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace {

constexpr double Turn = 2 * std::numbers::pi;

std::size_t Frames(double seconds)
{
    return static_cast<std::size_t>(std::lround(seconds * SampleRate));
}

double TimeOf(std::size_t frame)
{
    return static_cast<double>(frame) / SampleRate;
}

/// Rises from silence and falls back to it without a corner, then scales the loudest sample to `peak`.
void Finish(Samples &samples, double attack, double fade, double peak)
{
    const auto ramp = [](std::size_t frame, std::size_t count) {
        return 0.5 -
               0.5 * std::cos(std::numbers::pi * static_cast<double>(frame) / static_cast<double>(count));
    };
    const std::size_t rising = Frames(attack);
    for (std::size_t n = 0; n < rising; ++n)
        samples[n] *= ramp(n, rising);
    const std::size_t falling = Frames(fade);
    for (std::size_t n = 0; n < falling; ++n)
        samples[samples.size() - 1 - n] *= ramp(n, falling);

    double loudest = 0;
    for (const double sample : samples)
        loudest = std::max(loudest, std::abs(sample));
    for (double &sample : samples)
        sample *= peak / loudest;
}

} // namespace

Samples MakeNote(double frequency)
{
    Samples samples(Frames(0.7));
    for (int harmonic = 1; harmonic <= 8 && frequency * harmonic < 0.45 * SampleRate; ++harmonic) {
        const double level = std::pow(harmonic, -1.4);
        const double decay = 3 + 1.1 * harmonic + frequency * harmonic / 900;
        for (std::size_t n = 0; n < samples.size(); ++n) {
            const double t = TimeOf(n);
            samples[n] += level * std::exp(-decay * t) * std::sin(Turn * frequency * harmonic * t);
        }
    }
    // The ear is keener on high notes, so they are made softer.
    const double peak = 0.42 * std::pow(std::max(1.0, frequency / 262), -0.25);
    Finish(samples, 0.004, 0.06, peak);
    return samples;
}

Samples MakeKeyClick()
{
    Samples samples(Frames(0.05));
    std::uint32_t seed = 20011;
    double soft = 0;
    for (std::size_t n = 0; n < samples.size(); ++n) {
        const double t = TimeOf(n);
        seed = seed * 1664525U + 1013904223U;
        const double noise = static_cast<double>(seed >> 8) / 8388608.0 - 1;
        soft += 0.55 * (noise - soft); // takes the hiss off
        samples[n] = soft * std::exp(-320 * t) + 0.35 * std::exp(-260 * t) * std::sin(Turn * 1500 * t) +
                     0.25 * std::exp(-110 * t) * std::sin(Turn * 290 * t);
    }
    Finish(samples, 0.0007, 0.015, 0.35);
    return samples;
}

Samples MakeErrorThud()
{
    Samples samples(Frames(0.2));
    double phase = 0;
    for (std::size_t n = 0; n < samples.size(); ++n) {
        const double t = TimeOf(n);
        phase += Turn * (130 + 45 * std::exp(-18 * t)) / SampleRate;
        double sample = 0;
        for (int harmonic = 1; harmonic <= 7; harmonic += 2)
            sample +=
                std::pow(harmonic, -1.3) * std::exp(-4.0 * (harmonic - 1) * t) * std::sin(phase * harmonic);
        samples[n] = sample * std::exp(-15 * t);
    }
    Finish(samples, 0.006, 0.06, 0.36);
    return samples;
}
