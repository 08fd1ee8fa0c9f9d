#include "core/drills/FingerTable.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct FingerFacts
{
    FingerStrip narrow;
    FingerStrip wide;
    QLatin1StringView name;
};

// In the order of the fingers from left to right.
constexpr std::array<FingerFacts, 9> Fingers{{
    {{0, 28}, {0, 37}, "left little finger"_L1},
    {{28, 28}, {37, 33}, "left ring finger"_L1},
    {{56, 34}, {73, 42}, "left middle finger"_L1},
    {{90, 34}, {115, 45}, "left index finger"_L1},
    {{124, 38}, {160, 50}, "thumb"_L1},
    {{285, 35}, {365, 45}, "right index finger"_L1},
    {{320, 33}, {410, 42}, "right middle finger"_L1},
    {{353, 28}, {455, 36}, "right ring finger"_L1},
    {{381, 29}, {488, 37}, "right little finger"_L1},
}};

const FingerFacts &FactsOf(Finger finger)
{
    return Fingers[static_cast<std::size_t>(finger)];
}

} // namespace

std::optional<Finger> FingerTable::FingerFor(char32_t character)
{
    const char32_t upper = QChar::toUpper(character);
    if (upper > 0xFFFF)
        return std::nullopt;
    const auto stroke = AnsiKeyboard::StrokeFor(QChar(static_cast<char16_t>(upper)));
    if (!stroke)
        return std::nullopt;
    return AnsiKeyboard::Keys().at(stroke->key).finger;
}

FingerStrip FingerTable::StripOf(Finger finger, LayoutMode mode)
{
    switch (mode) {
    case LayoutMode::None:
        break;
    case LayoutMode::Narrow:
        return FactsOf(finger).narrow;
    case LayoutMode::Wide:
        return FactsOf(finger).wide;
    }
    return {};
}

FingerStrip FingerTable::StripFor(char32_t character, LayoutMode mode)
{
    const auto finger = FingerFor(character);
    return finger ? StripOf(*finger, mode) : FingerStrip{};
}

QString FingerTable::NameOf(Finger finger)
{
    return FactsOf(finger).name;
}
