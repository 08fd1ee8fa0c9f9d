#include "core/drills/AnsiKeyboard.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int quartersPerKey = 4;

constexpr int shiftCode = 16;
constexpr int ctrlCode = 17;
constexpr int altCode = 18;
constexpr int leftShiftCode = 160;
constexpr int rightShiftCode = 161;
constexpr int leftCtrlCode = 162;
constexpr int leftAltCode = 164;

// The keys are centred between the wells of the window, not in the picture itself, which is why the left
// margin is the wider one.
struct PictureGeometry
{
    QSize picture;
    int left;
    int top;
    int pitchX;
    int pitchY;
    int gapBefore; // the part of the gap between two keys that lies left of and above a key
    int gapAfter;
};

constexpr PictureGeometry largeGeometry{{896, 276}, 16, 13, 58, 50, 2, 2};
constexpr PictureGeometry smallGeometry{{704, 217}, 9, 8, 46, 40, 1, 2};

class KeyList
{
public:
    explicit KeyList(QList<AnsiKey> &keys)
        : m_keys(keys)
    {
    }

    void BeginRow(int row)
    {
        m_row = row;
        m_left = 0;
    }

    void Add(const QString &name, int keyCode, Finger finger, int width)
    {
        m_keys.append({name, QChar(), QChar(), finger, keyCode, m_row, m_left, width});
        m_left += width;
    }

    void AddCharacter(char16_t plain, char16_t shifted, int keyCode, Finger finger,
                      int width = quartersPerKey)
    {
        const QString name = plain == u' ' ? u"Space"_s : QString(QChar(plain)).toUpper();
        m_keys.append({name, QChar(plain), QChar(shifted), finger, keyCode, m_row, m_left, width});
        m_left += width;
    }

    void AddLetters(const QString &letters, const std::array<Finger, 10> &fingers)
    {
        for (qsizetype i = 0; i < letters.size(); ++i) {
            const char16_t upper = letters.at(i).unicode();
            AddCharacter(letters.at(i).toLower().unicode(), upper, upper, fingers.at(static_cast<size_t>(i)));
        }
    }

private:
    QList<AnsiKey> &m_keys;
    int m_row = 0;
    int m_left = 0;
};

QList<AnsiKey> MakeKeys()
{
    using enum Finger;
    constexpr std::array<Finger, 10> columns{LeftLittle, LeftRing,   LeftMiddle,  LeftIndex, LeftIndex,
                                             RightIndex, RightIndex, RightMiddle, RightRing, RightLittle};
    const QString shiftedDigits = u"!@#$%^&*()"_s;
    const QString digits = u"1234567890"_s;

    QList<AnsiKey> keys;
    KeyList list(keys);

    list.BeginRow(0);
    list.AddCharacter(u'`', u'~', 192, LeftLittle);
    for (qsizetype i = 0; i < digits.size(); ++i) {
        const char16_t digit = digits.at(i).unicode();
        list.AddCharacter(digit, shiftedDigits.at(i).unicode(), digit, columns.at(static_cast<size_t>(i)));
    }
    list.AddCharacter(u'-', u'_', 189, RightLittle);
    list.AddCharacter(u'=', u'+', 187, RightLittle);
    list.Add(u"Backspace"_s, 8, RightLittle, 8);

    list.BeginRow(1);
    list.Add(u"Tab"_s, 9, LeftLittle, 6);
    list.AddLetters(u"QWERTYUIOP"_s, columns);
    list.AddCharacter(u'[', u'{', 219, RightLittle);
    list.AddCharacter(u']', u'}', 221, RightLittle);
    list.AddCharacter(u'\\', u'|', 220, RightLittle, 6);

    list.BeginRow(2);
    list.Add(u"Caps Lock"_s, 20, LeftLittle, 7);
    list.AddLetters(u"ASDFGHJKL"_s, columns);
    list.AddCharacter(u';', u':', 186, RightLittle);
    list.AddCharacter(u'\'', u'"', 222, RightLittle);
    list.Add(u"Enter"_s, 13, RightLittle, 9);

    list.BeginRow(3);
    list.Add(u"Left Shift"_s, leftShiftCode, LeftLittle, 9);
    list.AddLetters(u"ZXCVBNM"_s, columns);
    list.AddCharacter(u',', u'<', 188, RightMiddle);
    list.AddCharacter(u'.', u'>', 190, RightRing);
    list.AddCharacter(u'/', u'?', 191, RightLittle);
    list.Add(u"Right Shift"_s, rightShiftCode, RightLittle, 11);

    list.BeginRow(4);
    list.Add(u"Left Ctrl"_s, leftCtrlCode, LeftLittle, 6);
    list.Add(u"Left Meta"_s, 91, LeftLittle, 5);
    list.Add(u"Left Alt"_s, leftAltCode, Thumb, 5);
    list.AddCharacter(u' ', u' ', 32, Thumb, 24);
    list.Add(u"Right Alt"_s, 165, Thumb, 5);
    list.Add(u"Right Meta"_s, 92, RightLittle, 5);
    list.Add(u"Menu"_s, 93, RightLittle, 5);
    list.Add(u"Right Ctrl"_s, 163, RightLittle, 5);
    return keys;
}

const PictureGeometry &GeometryOf(AnsiKeyboard::Size size)
{
    return size == AnsiKeyboard::Size::Large ? largeGeometry : smallGeometry;
}

bool IsLeftHand(Finger finger)
{
    return finger < Finger::Thumb;
}

} // namespace

const QList<AnsiKey> &AnsiKeyboard::Keys()
{
    static const QList<AnsiKey> keys = MakeKeys();
    return keys;
}

QSize AnsiKeyboard::PictureSize(Size size)
{
    return GeometryOf(size).picture;
}

QRect AnsiKeyboard::KeyRect(int index, Size size)
{
    const PictureGeometry &geometry = GeometryOf(size);
    const AnsiKey &key = Keys().at(index);
    const int left = geometry.left + key.left * geometry.pitchX / quartersPerKey;
    const int right = geometry.left + (key.left + key.width) * geometry.pitchX / quartersPerKey;
    const int top = geometry.top + key.row * geometry.pitchY;
    return {QPoint(left + geometry.gapBefore, top + geometry.gapBefore),
            QPoint(right - geometry.gapAfter - 1, top + geometry.pitchY - geometry.gapAfter - 1)};
}

std::optional<AnsiStroke> AnsiKeyboard::StrokeFor(QChar character)
{
    if (character.isNull())
        return std::nullopt;
    const QList<AnsiKey> &keys = Keys();
    for (int index = 0; index < keys.size(); ++index) {
        const AnsiKey &key = keys.at(index);
        if (key.plain == character)
            return AnsiStroke{index, std::nullopt};
        if (key.shifted == character)
            return AnsiStroke{index, KeyWithCode(IsLeftHand(key.finger) ? rightShiftCode : leftShiftCode)};
    }
    return std::nullopt;
}

std::optional<int> AnsiKeyboard::KeyWithCode(int keyCode)
{
    switch (keyCode) {
    case shiftCode:
        keyCode = leftShiftCode;
        break;
    case ctrlCode:
        keyCode = leftCtrlCode;
        break;
    case altCode:
        keyCode = leftAltCode;
        break;
    default:
        break;
    }
    const QList<AnsiKey> &keys = Keys();
    for (int index = 0; index < keys.size(); ++index) {
        if (keys.at(index).keyCode == keyCode)
            return index;
    }
    return std::nullopt;
}
