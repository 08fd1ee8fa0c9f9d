#include "core/speedtest/PlacementWords.h"

namespace {

bool IsAsciiLetterOrDigit(char32_t character)
{
    return (character >= U'0' && character <= U'9') || (character >= U'A' && character <= U'Z') ||
           (character >= U'a' && character <= U'z');
}

} // namespace

int Public_Function::CountWords(std::u32string_view text)
{
    int words = 0;
    bool open = false;
    for (const char32_t character : text) {
        if (IsAsciiLetterOrDigit(character)) {
            open = true;
            continue;
        }
        words += open;
        open = false;
        const bool blank = character <= U' ' || character == 0x7F;
        words += !blank;
    }
    return words;
}
