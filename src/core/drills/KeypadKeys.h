#pragma once

#include "core/drills/FingerTable.h"

/// One key of the numeric keypad.
struct KeypadKey
{
    QString name;    ///< "7", "Enter", "Num Lock": what a person calls it
    QChar character; ///< what it types while Num Lock is on, null for none
    Finger finger;   ///< of the right hand; the thumb is the right one
    int keyCode;     ///< virtual key code, 96 to 111; 0 for the keys that are only drawn
    int row;         ///< 0 the row of Num Lock, to 4 the row of the 0
    int column;      ///< 0 to 3
    int width;       ///< in columns
    int height;      ///< in rows
};

/// The numeric keypad that is drawn on the screen: what its keys type, who strikes them and where they lie.
/// As with the main keyboard, pictures and widget both take the geometry from here.
class KeypadKeys
{
public:
    using Size = AnsiKeyboard::Size;

    static const QList<KeypadKey> &Keys();

    /// 186 x 216 or 240 x 276 pixels.
    static QSize PictureSize(Size size);

    /// In pixels from the picture's top left corner, without the gaps between the keys. `index` must be one
    /// of `Keys()`.
    static QRect KeyRect(int index, Size size);

    /// Index of the key that types a digit or one of + - * / and the full stop. None for every other
    /// character.
    static std::optional<int> KeyFor(char32_t character);

    /// Index of the key with a virtual key code from 96 (the 0) to 111; the code of a second decimal key
    /// (108) means the full stop. None for every other code.
    static std::optional<int> KeyWithCode(int keyCode);

    /// Where the finger lies in the pictures of the hands. The thumb is that of the right hand here.
    static FingerStrip StripOf(Finger finger, LayoutMode mode);

    /// The column of those pictures at which the right hand begins; 0 in LayoutMode::None.
    static int RightHandOffset(LayoutMode mode);
};
