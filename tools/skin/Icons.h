#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

class QPainter;

/// Line drawings on a ground of 24 x 24 units.
enum class Icon {
    Keyboard,
    Stopwatch,
    Book,
    Rocket,
    Rabbit,
    Chart,
    Person,
    Clock,
    Gauge,
    Steps,
    Target,
    Close,
    Minimize,
    Help
};

/// Draws the icon in `size` x `size` logical pixels from `topLeft` on.
void DrawIcon(QPainter &painter, Icon icon, const QPointF &topLeft, qreal size, const QColor &color);
