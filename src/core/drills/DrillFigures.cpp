#include "core/drills/DrillFigures.h"

#include <algorithm>
#include <cstdint>

namespace {

int WholePercent(int part, int whole)
{
    const std::int64_t percent = std::int64_t{part} * 100 / whole;
    return static_cast<int>(std::clamp<std::int64_t>(percent, 0, 100));
}

} // namespace

std::optional<int> DrillFigures::ProgressPercent(int itemIndex, int itemCount)
{
    if (itemCount == 0)
        return std::nullopt;
    return WholePercent(itemIndex, itemCount);
}

int DrillFigures::PerMinute(int units, int seconds)
{
    return static_cast<int>(std::int64_t{units} * 60 / seconds);
}

std::optional<int> DrillFigures::RatePercent(int correctKeys, int totalKeys)
{
    if (totalKeys == 0)
        return std::nullopt;
    return WholePercent(correctKeys, totalKeys);
}
