#include "MusicKeys.h"

#include <span>

namespace {

/// The white keys of a piano from a C upwards: step 0 is the C itself, step -1 the B below it.
int WhiteKey(int c, int step)
{
    constexpr std::array<int, 7> scale{0, 2, 4, 5, 7, 9, 11};
    const int octave = step < 0 ? -1 : step / 7;
    return c + 12 * octave + scale.at(static_cast<std::size_t>(step - 7 * octave));
}

} // namespace

std::array<int, MusicKeyCount> MusicKeyPitches()
{
    std::array<int, MusicKeyCount> pitches{};
    const auto setRow = [&pitches](int c, int firstStep, std::span<const int> keys) {
        for (const int key : keys)
            pitches.at(static_cast<std::size_t>(key)) = WhiteKey(c, firstStep++);
    };

    // Every row of the keyboard goes on past its octave, so that a tune seldom has to change the row.
    constexpr int z = 25, x = 23, c = 2, v = 21, b = 1, n = 13, m = 12, comma = 28, stop = 29, slash = 30;
    constexpr int a = 0, s = 18, d = 3, f = 5, g = 6, h = 7, j = 9, k = 10, l = 11, semicolon = 27,
                  apostrophe = 55, enter = 31;
    constexpr int tab = 32, q = 16, w = 22, e = 4, r = 17, t = 19, y = 24, u = 20, i = 8, o = 14, p = 15,
                  openBracket = 56, closeBracket = 57, backslash = 54;
    constexpr int grave = 33, one = 41, minus = 51, equal = 52, backspace = 53;
    constexpr int space = 26;

    setRow(48, 0, std::array{z, x, c, v, b, n, m, comma, stop, slash});
    setRow(60, 0, std::array{a, s, d, f, g, h, j, k, l, semicolon, apostrophe, enter});
    setRow(72, -1, std::array{tab, q, w, e, r, t, y, u, i, o, p, openBracket, closeBracket, backslash});
    setRow(84, -1,
           std::array{grave, one, one + 1, one + 2, one + 3, one + 4, one + 5, one + 6, one + 7, one + 8,
                      one + 9, minus, equal, backspace});
    pitches.at(space) = 43; // the G below the lowest row: it rests well under a tune in C

    // No key reaches the others. They complete the set: the lowest octave, then the black keys.
    setRow(36, 0, std::array{34, 35, 36, 37, 38, 39, 40});
    std::size_t next = 58;
    for (int octave = 48; next < pitches.size(); octave += 12) {
        for (const int sharp : {1, 3, 6, 8, 10}) {
            if (next < pitches.size())
                pitches.at(next++) = octave + sharp;
        }
    }
    return pitches;
}
