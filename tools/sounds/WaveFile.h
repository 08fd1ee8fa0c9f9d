#pragma once

#include "Synthesis.h"

#include <filesystem>

/// Writes a mono 16-bit wave file. False when it cannot be written whole.
bool WriteWaveFile(const std::filesystem::path &path, const Samples &samples);
