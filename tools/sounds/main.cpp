// Makes every sound of the program: the two effects and the notes of the music keyboard.

#include "MusicKeys.h"
#include "Synthesis.h"
#include "WaveFile.h"

#include <cmath>
#include <iostream>
#include <string>
#include <system_error>

namespace {

bool Write(const std::filesystem::path &path, const Samples &samples)
{
    if (WriteWaveFile(path, samples))
        return true;
    std::cerr << "cannot write " << path << '\n';
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "usage: quorvex-make-sounds FOLDER\n"
                     "writes FOLDER/SoundEffect/*.wav and FOLDER/MusicKeyboard/*.wav\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    const std::filesystem::path effects = folder / "SoundEffect";
    const std::filesystem::path notes = folder / "MusicKeyboard";
    for (const auto &needed : {effects, notes}) {
        std::error_code error;
        std::filesystem::create_directories(needed, error);
        if (error) {
            std::cerr << "cannot make the folder " << needed << ": " << error.message() << '\n';
            return 1;
        }
    }

    bool written =
        Write(effects / "Type.WAV", MakeKeyClick()) && Write(effects / "Error.wav", MakeErrorThud());
    int number = 0;
    for (const int pitch : MusicKeyPitches()) {
        const double frequency = 440 * std::pow(2.0, (pitch - 69) / 12.0);
        written = written && Write(notes / (std::to_string(number++) + ".wav"), MakeNote(frequency));
    }
    return written ? 0 : 1;
}
