#include "ui/widgets/TabRegion.h"

#include "ui/widgets/KeyHint.h"

TabRegion::TabRegion(const QString &objectName, const QString &accessibleName, const QPolygon &corners,
                     QWidget *parent)
    : QAbstractButton(parent)
    , m_corners(corners.translated(-corners.boundingRect().topLeft()))
{
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setFocusPolicy(Qt::NoFocus);
    setCheckable(true);
    setAutoExclusive(true); // one of several, to those who cannot see it
    SetOwn(false);
    setGeometry(corners.boundingRect());
    // The tabs' slanted sides interlock; the mask leaves its neighbour's part of the rectangle to the
    // neighbour.
    setMask(QRegion(m_corners, Qt::OddEvenFill));
}

void TabRegion::SetNumber(int number)
{
    setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + number)));
    Public_Function::ShowKey(this);
}

void TabRegion::SetOwn(bool own)
{
    setChecked(own);
    if (own)
        unsetCursor();
    else
        setCursor(Qt::PointingHandCursor);
}

bool TabRegion::hitButton(const QPoint &position) const
{
    return m_corners.containsPoint(position, Qt::OddEvenFill);
}

void TabRegion::paintEvent(QPaintEvent *) {}
