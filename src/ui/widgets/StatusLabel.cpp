#include "ui/widgets/StatusLabel.h"

#include <QPaintEvent>
#include <QPainter>

StatusLabel::StatusLabel(QWidget *parent)
    : QLabel(parent)
{
}

void StatusLabel::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        m_ground.Paint(painter, event->rect());
    }
    QLabel::paintEvent(event);
}
