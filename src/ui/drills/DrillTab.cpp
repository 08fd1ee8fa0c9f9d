#include "ui/drills/DrillTab.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

DrillTab::DrillTab(int index, bool own, const QPolygon &corners, QWidget *parent)
    : QAbstractButton(parent)
    , m_corners(corners.translated(-corners.boundingRect().topLeft()))
{
    const std::array<QString, 4> names{tr("Key drill (junior)"), tr("Key drill (senior)"), tr("Word drill"),
                                       tr("Text drill")};
    setObjectName(u"DrillTab"_s + QString::number(index));
    setAccessibleName(names[static_cast<std::size_t>(index)]);
    setFocusPolicy(Qt::NoFocus);
    setCheckable(true);
    setChecked(own);
    if (!own)
        setCursor(Qt::PointingHandCursor);
    const QRect bounds = corners.boundingRect();
    setGeometry(bounds);
    // The tabs' slanted sides interlock; the mask leaves its neighbour's part of the rectangle to the
    // neighbour.
    setMask(QRegion(m_corners, Qt::OddEvenFill));
}

bool DrillTab::hitButton(const QPoint &position) const
{
    return m_corners.containsPoint(position, Qt::OddEvenFill);
}

void DrillTab::paintEvent(QPaintEvent *) {}
