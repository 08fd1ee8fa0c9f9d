#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QStringList>
#include <functional>

/// Places for the parts of a chart on a page that has its own layout.
struct ChartPlaces
{
    QRectF plot; ///< its left and lower edges are the axes; it gives way to marks that need more room
    QPointF valueTitle;
    QPointF labelTitle;
    qreal firstSlot = 0; ///< from the plot's left edge to the first value's slot
    qreal slotWidth = 0; ///< 0: the values share the plot
    qreal barWidth = 0;
};

/// What a chart shows: one value a label, at equal distances from left to right.
struct ChartData
{
    enum class Kind { Line, Bar };

    Kind kind = Kind::Line;
    QString title; ///< above the plot; none when empty
    QString labelTitle;
    QString valueTitle;
    QString emptyText; ///< in the middle of the plot while there is no value above 0
    QStringList labels;
    QList<double> values;     ///< what is negative or no number counts as 0
    double maximum = 0;       ///< the top of the scale, which begins at 0; higher values are cut off there
    bool wholeNumbers = true; ///< no marks between whole numbers
    QColor color{62, 84, 122};
    int scaleParts = 0; ///< other than 0: marks at so many equal parts of the scale
    QString barPicture; ///< of the skin, stretched to each bar
    ChartPlaces places; ///< empty: the chart lays itself out

    std::function<QString(qsizetype)> labelOf; ///< instead of labels, where there are many and few are shown

    QString Label(qsizetype index) const { return labelOf ? labelOf(index) : labels.value(index); }
    /// Every label with its value, for those who do not see the picture.
    QString Description() const;
};
