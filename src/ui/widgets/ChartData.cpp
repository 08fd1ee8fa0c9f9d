#include "ui/widgets/ChartData.h"

#include "ui/widgets/ChartScale.h"

using namespace Qt::Literals::StringLiterals;

QString ChartData::Description() const
{
    QStringList parts;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const QString label = labels.value(i);
        if (label.isEmpty() && !(values[i] > 0))
            continue;
        parts += (label.isEmpty() ? QString() : label + u": "_s) + ChartScale::Text(values[i]);
    }
    return parts.isEmpty() ? emptyText : parts.join(u", "_s);
}
