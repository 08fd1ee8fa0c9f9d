#pragma once

#include <random>

class Clock;
class InputMethod;
class SoundPlayer;
class ProgramLauncher;

/// What the program asks of the machine. `main` fills it with the real ones; until then, and in a test that
/// does not care, the clock is the system's, sounds are silent, there is no input method and the generator
/// has a fixed seed. The pointers are not owned.
struct Services
{
    Clock *clock;
    SoundPlayer *sound;
    ProgramLauncher *launcher;
    InputMethod *inputMethod;
    std::mt19937 random;
};

Services &PlatformServices();
