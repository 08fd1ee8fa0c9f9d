#pragma once

#include "core/drills/AnsiKeyboard.h"
#include "core/drills/DrillLayout.h"

/// Part of the pictures of the hands that lights one finger, in pixels. Empty: no finger.
struct FingerStrip
{
    int offset = 0;
    int width = 0;

    bool operator==(const FingerStrip &) const = default;
};

/// Which finger types a character, and where it lies in the pictures of the hands.
namespace FingerTable {

/// The finger that types a character on the main keyboard, letter case aside.
std::optional<Finger> FingerFor(char32_t character);

FingerStrip StripOf(Finger finger, LayoutMode mode);

/// The two in one: empty for a character that no finger types, and in LayoutMode::None.
FingerStrip StripFor(char32_t character, LayoutMode mode);

/// "left little finger"
QString NameOf(Finger finger);

} // namespace FingerTable
