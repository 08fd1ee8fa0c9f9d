#pragma once

class QAbstractButton;
class QString;

namespace Public_Function {

/// Shows in the button's tooltip which key presses it wherever the keyboard is, and tells it to screen
/// readers. Without `key` that is the button's shortcut.
void ShowKey(QAbstractButton *button);
void ShowKey(QAbstractButton *button, const QString &key);

} // namespace Public_Function
