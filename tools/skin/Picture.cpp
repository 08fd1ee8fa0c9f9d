#include "Picture.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

QString NameOf(Frame frame)
{
    switch (frame) {
    case Frame::Hovered:
        return u"hovered"_s;
    case Frame::Pressed:
        return u"pressed"_s;
    case Frame::Disabled:
        return u"disabled"_s;
    case Frame::Normal:
    case Frame::Focused:
        break;
    }
    return u"normal"_s;
}

Picture MakeStrip(const QString &name, const QSize &frame, int frames,
                  const std::function<void(QPainter &, Frame)> &draw)
{
    return {name, QSize(frame.width() * frames, frame.height()), [=](QPainter &painter) {
                for (int index = 0; index < frames; ++index) {
                    painter.save();
                    painter.translate(index * frame.width(), 0);
                    painter.setClipRect(QRect(QPoint(0, 0), frame));
                    draw(painter, static_cast<Frame>(index));
                    painter.restore();
                }
            }};
}

QImage RenderPicture(const Picture &picture, qreal scale)
{
    QImage image((QSizeF(picture.size) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    painter.setPen(Qt::NoPen);
    picture.draw(painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}
