#pragma once

#include <QString>
#include <string>

class QKeyEvent;

/// A key press or release as the on-screen keyboards take it.
struct KeyStroke
{
    int keyCode =
        0; ///< virtual key code (65 for A), 0 when the key is of neither the main block nor the keypad
    char32_t character = 0; ///< the first character that the key typed, 0 for none
    quint32 id = 0;         ///< the same at press and release of one key
    bool keypad = false;    ///< a key of the numeric keypad
};

KeyStroke KeyStrokeOf(const QKeyEvent &event);

/// The characters that a key press types, mostly one or none. Backspace, Tab, Enter and Escape type their
/// control characters (8, 9, 13, 27); with Ctrl, Alt or Meta held a key commands and types nothing.
std::u32string TypedCharacters(const QKeyEvent &event);
