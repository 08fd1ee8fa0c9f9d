#pragma once

#include <QRectF>

class QPainter;
class Theme;

/// The main menu's scene: key caps that climb a rising curve out of a keyboard.
void DrawIllustration(QPainter &painter, const Theme &theme, const QRectF &stage);
