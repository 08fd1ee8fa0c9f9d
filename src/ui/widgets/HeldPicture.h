#pragma once

#include <QPixmap>
#include <QString>

/// A picture of the skin that a widget keeps while it shows it, so that painting looks nothing up. It is
/// taken again only when the widget moves to a screen of another pixel ratio.
class HeldPicture
{
public:
    explicit HeldPicture(const QString &name = {})
        : m_name(name)
    {
    }

    void SetName(const QString &name);

    /// Null when the skin has no such picture.
    const QPixmap &For(qreal devicePixelRatio);

    /// Keeps it no longer, here and in the pixmap cache, until it is asked for again.
    void LetGo();

    /// Copies the part of the picture that lies at `source` (logical pixels) to `target`'s top left corner.
    /// False when there is no picture.
    bool Draw(class QPainter &painter, const QPoint &target, const QRect &source);

private:
    QString m_name;
    QPixmap m_pixmap;
    qreal m_ratio = 0;
};
