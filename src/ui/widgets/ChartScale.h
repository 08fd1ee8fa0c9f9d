#pragma once

#include <QList>
#include <QString>

/// Where the marks of a chart's value axis stand.
class ChartScale
{
public:
    /// From 0 to `maximum` with about `mostMarks` marks at the most, whose distance is 1, 2 or 5 times a
    /// power of ten.
    ChartScale(double maximum, int mostMarks, bool wholeNumbers);

    /// 0, then the multiples of the step, then the maximum itself unless the last multiple is close to it.
    QList<double> Marks() const { return m_marks; }
    /// The part of the scale below a value, 0 to 1.
    double Share(double value) const;

    /// The value as a mark shows it.
    static QString Text(double value);

private:
    double m_maximum;
    QList<double> m_marks;
};
