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

    /// Marks at every one of `parts` equal parts of the maximum.
    static ChartScale InParts(double maximum, int parts);

    /// 0, then the multiples of the step, then the maximum itself unless the last multiple is close to it.
    QList<double> Marks() const { return m_marks; }
    /// The part of the scale below a value, 0 to 1.
    double Share(double value) const;

    static QString Text(double value);
    /// The value of a mark, which parts give more digits than there is room for.
    QString MarkText(double value) const;

private:
    double m_maximum;
    QList<double> m_marks;
    bool m_inParts = false;
};
