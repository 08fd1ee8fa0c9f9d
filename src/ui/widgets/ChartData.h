#pragma once

#include <QColor>
#include <QList>
#include <QStringList>

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

    /// Every label with its value, for those who do not see the picture.
    QString Description() const;
};
