#include "ui/widgets/HeldPicture.h"

#include "ui/skin/SkinLibrary.h"

#include <QPainter>
#include <utility>

void HeldPicture::SetName(const QString &name)
{
    m_name = name;
    m_ratio = 0;
}

const QPixmap &HeldPicture::For(qreal devicePixelRatio)
{
    if (m_ratio != devicePixelRatio) {
        m_ratio = devicePixelRatio;
        m_pixmap = SkinLibrary().Bitmap(m_name, devicePixelRatio);
    }
    return m_pixmap;
}

void HeldPicture::LetGo()
{
    m_pixmap = {};
    SkinLibrary().LetGo({m_name}, std::exchange(m_ratio, 0));
}

bool HeldPicture::Draw(QPainter &painter, const QPoint &target, const QRect &source)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QPixmap &picture = For(ratio);
    if (picture.isNull())
        return false;
    painter.drawPixmap(
        QRectF(QPointF(target), QSizeF(source.size())), picture,
        QRectF(source.x() * ratio, source.y() * ratio, source.width() * ratio, source.height() * ratio));
    return true;
}
