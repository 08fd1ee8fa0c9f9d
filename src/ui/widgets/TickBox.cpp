#include "ui/widgets/TickBox.h"

#include "ui/skin/DialogStyle.h"
#include "ui/skin/Fonts.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

TickBox::TickBox(const QString &objectName, const QString &text, QWidget *parent)
    : QCheckBox(text, parent)
{
    setObjectName(objectName);
    setFont(Public_Function::InterfaceFont(10));
    setStyleSheet(Public_Function::DialogTickStyle());
}

void TickBox::paintEvent(QPaintEvent *event)
{
    QCheckBox::paintEvent(event);
    if (!isChecked())
        return;
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRectF box(style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&](qreal x, qreal y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    painter.drawPolyline(QPolygonF{at(0.25, 0.53), at(0.43, 0.71), at(0.76, 0.31)});
}
