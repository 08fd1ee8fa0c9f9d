#include "core/records/NumberText.h"

#include <array>
#include <charconv>

QString ShortestText(float number)
{
    std::array<char, 64> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return QString::fromLatin1(text.data(), end.ptr - text.data());
}
