#include "core/drills/KeypadKeys.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// As on the main keyboard the left margin is the wider one: the keys are centred in the window's well.
struct KeypadGeometry
{
    QSize picture;
    QPoint corner;
    QSize pitch;
    int gapBefore; // the part of the gap between two keys that lies left of and above a key
    int gapAfter;
};

constexpr KeypadGeometry GeometryOfKeypad(KeypadKeys::Size size)
{
    if (size == KeypadKeys::Size::Large)
        return {{240, 276}, {13, 13}, {57, 50}, 2, 2};
    return {{186, 216}, {10, 8}, {44, 40}, 1, 2};
}

KeypadKey CharacterKey(char16_t character, Finger finger, int keyCode, int row, int column)
{
    return {QString(QChar(character)), QChar(character), finger, keyCode, row, column, 1, 1};
}

QList<KeypadKey> MakeKeypad()
{
    using enum Finger;
    QList<KeypadKey> keys{
        {u"Num Lock"_s, QChar(), RightIndex, 0, 0, 0, 1, 1},
        CharacterKey(u'/', RightMiddle, 111, 0, 1),
        CharacterKey(u'*', RightRing, 106, 0, 2),
        CharacterKey(u'-', RightLittle, 109, 0, 3),
    };
    constexpr Finger columns[]{RightIndex, RightMiddle, RightRing};
    for (int row = 1; row <= 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const int digit = 3 * (3 - row) + column + 1;
            keys +=
                CharacterKey(static_cast<char16_t>(u'0' + digit), columns[column], 96 + digit, row, column);
        }
    }
    keys += {u"+"_s, u'+', RightLittle, 107, 1, 3, 1, 2};
    keys += {u"Enter"_s, QChar(), RightLittle, 0, 3, 3, 1, 2};
    keys += {u"0"_s, u'0', Thumb, 96, 4, 0, 2, 1};
    keys += CharacterKey(u'.', RightRing, 110, 4, 2);
    return keys;
}

template <typename Matches>
std::optional<int> IndexOfKey(Matches matches)
{
    const QList<KeypadKey> &keys = KeypadKeys::Keys();
    for (int index = 0; index < keys.size(); ++index) {
        if (matches(keys.at(index)))
            return index;
    }
    return std::nullopt;
}

} // namespace

const QList<KeypadKey> &KeypadKeys::Keys()
{
    static const QList<KeypadKey> keys = MakeKeypad();
    return keys;
}

QSize KeypadKeys::PictureSize(Size size)
{
    return GeometryOfKeypad(size).picture;
}

QRect KeypadKeys::KeyRect(int index, Size size)
{
    const KeypadGeometry geometry = GeometryOfKeypad(size);
    const KeypadKey &key = Keys().at(index);
    const QPoint corner(key.column * geometry.pitch.width(), key.row * geometry.pitch.height());
    const QSize cells(key.width * geometry.pitch.width(), key.height * geometry.pitch.height());
    return QRect(geometry.corner + corner, cells)
        .adjusted(geometry.gapBefore, geometry.gapBefore, -geometry.gapAfter, -geometry.gapAfter);
}

std::optional<int> KeypadKeys::KeyFor(char32_t character)
{
    return IndexOfKey([character](const KeypadKey &key) {
        return !key.character.isNull() && key.character.unicode() == character;
    });
}

std::optional<int> KeypadKeys::KeyWithCode(int keyCode)
{
    constexpr int separator = 108;
    constexpr int decimal = 110;
    const int wanted = keyCode == separator ? decimal : keyCode;
    return IndexOfKey([wanted](const KeypadKey &key) { return key.keyCode != 0 && key.keyCode == wanted; });
}

FingerStrip KeypadKeys::StripOf(Finger finger, LayoutMode mode)
{
    // The thumb beside the index finger, and the wide ring finger's strip, which begins a little earlier
    // here.
    if (finger == Finger::Thumb && mode != LayoutMode::None)
        return mode == LayoutMode::Wide ? FingerStrip{320, 45} : FingerStrip{249, 36};
    if (finger == Finger::RightRing && mode == LayoutMode::Wide)
        return {452, 36};
    return FingerTable::StripOf(finger, mode);
}

int KeypadKeys::RightHandOffset(LayoutMode mode)
{
    return StripOf(Finger::Thumb, mode).offset;
}
