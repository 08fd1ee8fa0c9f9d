#include "ui/widgets/TickBox.h"

#include "ui/skin/DialogStyle.h"
#include "ui/skin/Fonts.h"
#include "ui/widgets/TickMark.h"

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
    PaintTickMark(painter, box);
}
