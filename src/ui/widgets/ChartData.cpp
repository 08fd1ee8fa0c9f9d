#include "ui/widgets/ChartData.h"

#include "ui/widgets/ChartScale.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QString ChartData::Description() const
{
    // What is too much to look at in numbers is too much to listen to.
    constexpr qsizetype most = 100;
    if (values.size() > most) {
        const auto highest = std::max_element(values.cbegin(), values.cend());
        const auto at = [this](qsizetype i) { return Label(i) + u": "_s + ChartScale::Text(values[i]); };
        return at(0) + u" … "_s + at(highest - values.cbegin()) + u" … "_s + at(values.size() - 1);
    }
    QStringList parts;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const QString label = Label(i);
        if (label.isEmpty() && !(values[i] > 0))
            continue;
        parts += (label.isEmpty() ? QString() : label + u": "_s) + ChartScale::Text(values[i]);
    }
    return parts.isEmpty() ? emptyText : parts.join(u", "_s);
}
