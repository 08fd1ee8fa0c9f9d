#pragma once

#include <QImage>
#include <QList>
#include <QSize>
#include <QString>
#include <functional>

class QPainter;

/// A picture of the skin, drawn in logical pixels so that every scale is drawn afresh and none is enlarged.
struct Picture
{
    QString name;
    QSize size;
    std::function<void(QPainter &)> draw;
};

using PictureList = QList<Picture>;

/// The frames of a button strip, in the strip's order.
enum class Frame { Normal, Hovered, Pressed, Disabled, Focused };

/// The frame's name in the theme: "normal", "hovered", "pressed", "disabled"; a focused one is "normal".
QString NameOf(Frame frame);

constexpr int usualFrames = 4;
constexpr int framesWithFocus = 5;

/// A strip of equal frames side by side. `draw` gets a painter whose origin is the frame's.
Picture MakeStrip(const QString &name, const QSize &frame, int frames,
                  const std::function<void(QPainter &, Frame)> &draw);

/// `scale` device pixels to a logical one.
QImage RenderPicture(const Picture &picture, qreal scale);
