#pragma once

#include "core/drills/AnsiKeyboard.h"

#include <QColor>

class QPainter;
class Theme;

enum class KeyState { Normal, Prompt, Pressed };

/// The whole keyboard with all keys in one state, on its ground.
void DrawKeyboard(QPainter &painter, const Theme &theme, AnsiKeyboard::Size size, KeyState state);

/// The tint of the keys that a finger strikes.
QColor FingerTint(const Theme &theme, Finger finger);
