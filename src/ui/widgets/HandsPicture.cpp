#include "ui/widgets/HandsPicture.h"

#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/PaintedAccess.h"

#include <QPaintEvent>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

HandsPicture::HandsPicture(QWidget *parent)
    : QWidget(parent)
    , m_unlit(this, [this](QPainter &painter) { PaintUnlit(painter); })
{
    Public_Function::SetAccessibleRole(this, QAccessible::Graphic);
    setObjectName(u"picActivateFinger"_s);
    setAccessibleName(tr("Finger to use"));
    resize(sizeHint());
}

void HandsPicture::SetBaseOffset(int baseOffset)
{
    m_baseOffset = baseOffset;
    resize(sizeHint());
    m_unlit.Renew();
    update();
}

QSize HandsPicture::sizeHint() const
{
    const QSize picture = SkinLibrary().BitmapSize(u"HAND_CLEAR"_s);
    const QSize size = picture.isEmpty() ? QSize(525, 150) : picture;
    return {qMax(0, size.width() - m_baseOffset), size.height()};
}

void HandsPicture::SetActiveFinger(const FingerStrip &strip, const QString &finger)
{
    if (m_strip == strip)
        return;
    update(StripRect());
    m_strip = strip;
    update(StripRect());
    setAccessibleDescription(finger);
}

QRect HandsPicture::StripRect() const
{
    return {m_strip.offset - m_baseOffset, 0, m_strip.width, height()};
}

void HandsPicture::PaintUnlit(QPainter &painter)
{
    m_plain.Draw(painter, {}, rect().translated(m_baseOffset, 0));
    m_plain.LetGo();
}

void HandsPicture::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const QPoint base(m_baseOffset, 0);
    for (const QRect &exposed : event->region()) {
        painter.setClipRect(exposed); // copied fast only through a clip that is one rectangle
        m_unlit.Paint(painter, exposed);
        const QRect lit = exposed & StripRect();
        if (!lit.isEmpty() && !m_lit.Draw(painter, lit.topLeft(), lit.translated(base)))
            painter.fillRect(lit, QColor(255, 164, 84));
    }
}
