#include "core/engine/TextUnits.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr char32_t ideographicSpace = 0x3000;
constexpr qint64 widest = std::numeric_limits<qint16>::max();

} // namespace

namespace Public_Function {

void ConvertFullSpace(QString &text)
{
    if (text == QChar(ideographicSpace))
        text = QChar(QChar::Space);
}

void ConvertFullSpace(std::u32string &text)
{
    if (text.size() == 1)
        text[0] = OrdinarySpace(text[0]);
}

char32_t OrdinarySpace(char32_t character)
{
    return character == ideographicSpace ? U' ' : character;
}

bool IsLetter(const QString &text)
{
    return !text.isEmpty() && IsLetter(char32_t(text[0].unicode()));
}

bool IsLetter(char32_t character)
{
    return (character >= U'A' && character <= U'Z') || (character >= U'a' && character <= U'z');
}

qint16 GetTextWidth(const QString &text)
{
    qint64 width = 0;
    for (const QChar c : text)
        width += c.isLowSurrogate() ? 0 : GetTextWidth(char32_t(c.unicode()));
    return static_cast<qint16>(std::min(width, widest));
}

int GetTextWidth(char32_t character)
{
    return character < 0x80 ? 1 : 2;
}

qint16 CeilDiv(float a, float b)
{
    const qint64 divisor = RoundHalfEven(static_cast<double>(b));
    if (divisor == 0)
        return 0;
    qint64 quotient = RoundHalfEven(static_cast<double>(a)) / divisor;
    if (static_cast<double>(a) / static_cast<double>(b) > static_cast<double>(quotient))
        ++quotient;
    return static_cast<qint16>(std::clamp<qint64>(quotient, std::numeric_limits<qint16>::min(), widest));
}

qint64 RoundHalfEven(double number)
{
    constexpr double limit = 9.0e18;
    return static_cast<qint64>(std::nearbyint(std::clamp(number, -limit, limit)));
}

} // namespace Public_Function
