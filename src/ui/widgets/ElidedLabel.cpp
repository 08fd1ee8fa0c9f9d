#include "ui/widgets/ElidedLabel.h"

#include "ui/skin/Fonts.h"

#include <QPainter>

ElidedLabel::ElidedLabel(const QString &objectName, const QString &accessibleName, QWidget *parent)
    : QLabel(parent)
{
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setTextFormat(Qt::PlainText);
    setFont(Public_Function::InterfaceFont(9));
}

void ElidedLabel::SetText(const QString &text)
{
    setText(text);
    setToolTip(text);
    setAccessibleDescription(text);
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QColor(40, 46, 58));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, width()));
}
