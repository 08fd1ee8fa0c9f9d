#pragma once

#include <vector>

/// Samples of one channel, -1 to 1. All sounds start and end at silence.
using Samples = std::vector<double>;

constexpr int SampleRate = 22050;

/// A plucked note, `frequency` in Hz.
Samples MakeNote(double frequency);

/// A key struck: a short, soft click.
Samples MakeKeyClick();

/// A mistake: a low, gentle thud with a little buzz in it.
Samples MakeErrorThud();
