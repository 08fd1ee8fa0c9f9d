#pragma once

#include "core/drills/AnsiKeyboard.h"

#include <QColor>
#include <QRectF>

class QPainter;
class Theme;

enum class KeyState { Normal, Prompt, Pressed };

struct LegendColors
{
    QColor text;
    QColor quiet; ///< of what a key has beside its main legend
};
LegendColors LegendColorsOf(const Theme &theme, KeyState state);

/// The key without its legends, tinted by finger. Gives the rectangle of its face.
QRectF DrawKeyBody(QPainter &painter, const Theme &theme, Finger finger, const QRectF &box, KeyState state);

/// What a finger feels of the keys on which hands rest.
void DrawBump(QPainter &painter, const QRectF &face, const QColor &color);

/// The whole keyboard with all keys in one state, on its ground.
void DrawKeyboard(QPainter &painter, const Theme &theme, AnsiKeyboard::Size size, KeyState state);

/// The tint of the keys that a finger strikes.
QColor FingerTint(const Theme &theme, Finger finger);
