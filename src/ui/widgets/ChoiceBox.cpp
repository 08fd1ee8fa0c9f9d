#include "ui/widgets/ChoiceBox.h"

#include "ui/skin/DialogStyle.h"
#include "ui/skin/Fonts.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <QTimer>

ChoiceBox::ChoiceBox(const QString &objectName, const QString &accessibleName, QWidget *parent)
    : QComboBox(parent)
{
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setFont(Public_Function::InterfaceFont(10));
    setStyleSheet(Public_Function::DialogChoiceStyle());
    // Only this delegate draws the entries as the style sheet says.
    setItemDelegate(new QStyledItemDelegate(this));
}

void ChoiceBox::hidePopup()
{
    // The list closes before its entry becomes the chosen one.
    QTimer::singleShot(0, this, [this, before = currentIndex()] {
        if (currentIndex() != before)
            Q_EMIT ChosenFromList();
    });
    QComboBox::hidePopup();
}

void ChoiceBox::paintEvent(QPaintEvent *event)
{
    QComboBox::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isEnabled() ? QColor(72, 80, 98) : QColor(170, 178, 194), 1.6, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const QPointF middle(width() - 14, height() / 2.0);
    painter.drawPolyline(
        QPolygonF{middle + QPointF(-4, -2), middle + QPointF(0, 2), middle + QPointF(4, -2)});
}
