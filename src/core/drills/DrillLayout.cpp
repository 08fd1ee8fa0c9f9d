#include "core/drills/DrillLayout.h"

#include <algorithm>

DrillLayout CalcLayoutMode(const QSize &area)
{
    // The title bar above the content area keeps its place on screens that are lower than the content.
    if (area.width() >= 1023) {
        return {LayoutMode::Wide,
                QPoint((area.width() - 994) / 2, std::max(41, (area.height() - 704) / 2 + 18))};
    }
    if (area.width() >= 799) {
        return {LayoutMode::Narrow,
                QPoint((area.width() - 776) / 2, std::max(34, (area.height() - 550) / 2 + 14))};
    }
    return {};
}
