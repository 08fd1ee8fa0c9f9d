#pragma once

#include <QtGlobal>
#include <optional>

/// Virtual key codes (65 for A, 160 for the left Shift, 96 for the keypad's 0) of the keys of a keyboard,
/// whatever its layout types with them.
namespace Public_Function {

/// The key with the scan code that the window system gave it, by its place on the keyboard. None for a key
/// outside the main block and the digits and signs of the keypad, and where the window system gives no scan
/// codes.
std::optional<int> VirtualKeyOfScanCode(quint32 nativeScanCode);

/// The same by Qt's name of the key (Qt::Key), for keys that type no character; letters and digits too. The
/// left one of a pair.
std::optional<int> VirtualKeyOfQtKey(int qtKey);

} // namespace Public_Function
