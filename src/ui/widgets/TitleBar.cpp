#include "ui/widgets/TitleBar.h"

#include "ui/widgets/PaintedAccess.h"

#include <QMouseEvent>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

TitleBar::TitleBar(QWidget *window)
    : QWidget(window)
{
    Public_Function::SetAccessibleRole(this, QAccessible::TitleBar);
    setObjectName(u"ImgTitleBar"_s);
}

void TitleBar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    QWindow *handle = window()->windowHandle();
    if (handle && handle->startSystemMove())
        return;
    m_grip = event->globalPosition().toPoint() - window()->pos();
    m_movingByHand = true;
}

void TitleBar::mouseMoveEvent(QMouseEvent *event)
{
    if (m_movingByHand)
        window()->move(event->globalPosition().toPoint() - m_grip);
}

void TitleBar::mouseReleaseEvent(QMouseEvent *)
{
    m_movingByHand = false;
}
