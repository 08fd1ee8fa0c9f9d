#include "ui/shell/ScreenFit.h"

#include <QByteArray>
#include <algorithm>

double ScaleToFit(const QSize &logical, double devicePixelRatio)
{
    if (logical.width() * devicePixelRatio < SmallestLayout.width())
        return 1.0;
    const double across = static_cast<double>(logical.width()) / SmallestLayout.width();
    const double down = static_cast<double>(logical.height()) / SmallestLayout.height();
    const double factor = std::min(across, down);
    if (factor >= 1.0 && devicePixelRatio >= 1.0)
        return 1.0;
    // A hair less, so that rounding cannot leave the screen one logical pixel short.
    return std::max(std::min(factor, 1.0) * 0.9995, 1.0 / devicePixelRatio);
}

void ChangeScale(double factor)
{
    bool isNumber = false;
    const double set = qgetenv("QT_SCALE_FACTOR").toDouble(&isNumber);
    qputenv("QT_SCALE_FACTOR", QByteArray::number((isNumber && set > 0 ? set : 1.0) * factor, 'f', 5));
}
