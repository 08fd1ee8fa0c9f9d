#pragma once

#include <array>

constexpr int MusicKeyCount = 74;

/// The pitch of every music keyboard file by its number: a MIDI note number, 60 being middle C.
std::array<int, MusicKeyCount> MusicKeyPitches();
