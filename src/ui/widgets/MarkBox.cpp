#include "ui/widgets/MarkBox.h"

#include "ui/skin/Fonts.h"
#include "ui/widgets/TickMark.h"

#include <QPainter>

MarkBox::MarkBox(const QString &objectName, QWidget *parent)
    : QCheckBox(parent)
{
    setObjectName(objectName);
    setAttribute(Qt::WA_Hover);
}

void MarkBox::SetContent(const QString &content, qreal points)
{
    m_content = content;
    setFont(Public_Function::InterfaceFont(points));
    update();
}

QRect MarkBox::BoxRect() const
{
    const QSize size(BoxSize, BoxSize);
    if (m_boxBelow)
        return {QPoint((width() - BoxSize) / 2, height() - BoxSize - Margin), size};
    return {QPoint(Margin, (height() - BoxSize) / 2), size};
}

void MarkBox::PaintContent(QPainter &painter)
{
    if (m_content.isEmpty())
        return;
    const QRect place = rect().adjusted(Margin + BoxSize + 4, 0, -Margin, 0);
    painter.setPen(QColor(40, 46, 58));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(m_content, Qt::ElideRight, place.width()));
}

void MarkBox::paintEvent(QPaintEvent *)
{
    constexpr QColor dark(62, 84, 122);
    QPainter painter(this);
    painter.setFont(font());
    painter.save();
    PaintContent(painter);
    painter.restore();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box(BoxRect());
    painter.setPen(QPen(isChecked() || underMouse() ? dark : QColor(120, 128, 148), 1));
    painter.setBrush(isChecked() ? dark : isDown() ? QColor(211, 214, 224) : QColor(Qt::white));
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    if (isChecked())
        PaintTickMark(painter, box);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(dark, 1.5));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
}
