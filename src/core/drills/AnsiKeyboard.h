#pragma once

#include <QChar>
#include <QList>
#include <QRect>
#include <QSize>
#include <QString>
#include <optional>

/// Fingers from left to right. Both thumbs share the space bar.
enum class Finger {
    LeftLittle,
    LeftRing,
    LeftMiddle,
    LeftIndex,
    Thumb,
    RightIndex,
    RightMiddle,
    RightRing,
    RightLittle
};

/// One key of the main block of an ANSI keyboard.
struct AnsiKey
{
    QString name;  ///< "A", "Left Shift", "Space": what a person calls it
    QChar plain;   ///< the character without Shift, null where the key types none (letters: lower case)
    QChar shifted; ///< the character with Shift, null where the key types none
    Finger finger; ///< the finger that strikes it in touch typing
    int keyCode;   ///< virtual key code as the drills see it (65 for A, 188 for the comma)
    int row;       ///< 0 the row of digits, to 4 the row of the space bar
    int left;      ///< in quarters of a letter key's pitch from the keyboard's left edge
    int width;     ///< in the same quarters

    bool TypesCharacter() const { return !plain.isNull(); }
};

/// How a character is typed.
struct AnsiStroke
{
    int key;                     ///< index into `AnsiKeyboard::Keys()`
    std::optional<int> shiftKey; ///< index of the Shift key of the other hand, where Shift is needed
};

/// The keyboard that is drawn on the screen: what its keys type, who strikes them and where they lie. The
/// pictures and the widget that shows them both take the geometry from here, so a key's rectangle cuts
/// exactly that key out of the pictures.
class AnsiKeyboard
{
public:
    enum class Size { Small, Large };

    /// Row by row, from left to right.
    static const QList<AnsiKey> &Keys();

    /// 704 x 217 or 896 x 276 pixels.
    static QSize PictureSize(Size size);

    /// In pixels from the picture's top left corner, without the gaps between the keys. `index` must be one
    /// of `Keys()`.
    static QRect KeyRect(int index, Size size);

    /// Any character from "!" to "~", and the space. None for every other.
    static std::optional<AnsiStroke> StrokeFor(QChar character);

    /// Index of the key with that virtual key code. The code that both keys of a pair share (16 Shift, 17
    /// Ctrl, 18 Alt) means the left one. None when there is no such key.
    static std::optional<int> KeyWithCode(int keyCode);
};
