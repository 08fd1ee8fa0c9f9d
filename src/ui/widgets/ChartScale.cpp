#include "ui/widgets/ChartScale.h"

#include <cmath>

namespace {

double NiceStep(double span, int steps, bool wholeNumbers)
{
    const double rough = span / qMax(1, steps);
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    double step = 10 * power;
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= rough * 0.999999) {
            step = factor * power;
            break;
        }
    }
    return wholeNumbers ? qMax(1.0, step) : step;
}

} // namespace

ChartScale::ChartScale(double maximum, int mostMarks, bool wholeNumbers)
    : m_maximum(std::isfinite(maximum) && maximum > 0 ? maximum : 0)
    , m_marks{0}
{
    if (m_maximum <= 0)
        return;
    const double step = NiceStep(m_maximum, mostMarks, wholeNumbers);
    for (int i = 1; i * step <= m_maximum * 1.000001; ++i)
        m_marks += i * step;
    // The top of the scale is worth a number too, unless it would stand on the one below.
    if (m_maximum - m_marks.constLast() > step / 2)
        m_marks += m_maximum;
}

ChartScale ChartScale::InParts(double maximum, int parts)
{
    ChartScale scale(maximum, 1, false);
    scale.m_inParts = true;
    scale.m_marks = {0};
    for (int part = 1; scale.m_maximum > 0 && part <= parts; ++part)
        scale.m_marks += scale.m_maximum / parts * part;
    return scale;
}

double ChartScale::Share(double value) const
{
    return m_maximum > 0 && value > 0 ? qMin(1.0, value / m_maximum) : 0;
}

QString ChartScale::Text(double value)
{
    if (!std::isfinite(value) || value < 0)
        value = 0;
    if (value >= 1e6 && value < 1e12)
        return QString::number(value, 'f', 0);
    return QString::number(value, 'g', 6);
}

QString ChartScale::MarkText(double value) const
{
    if (!m_inParts)
        return Text(value);
    return value < 999.5 ? QString::number(value, 'g', 3) : Text(std::round(value));
}
