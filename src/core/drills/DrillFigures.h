#pragma once

#include <optional>

/// The figures of a drill's status panel. All divisions drop the fraction.
namespace DrillFigures {

/// 0 to 100; none while there are no items.
std::optional<int> ProgressPercent(int itemIndex, int itemCount);

/// Units (keys, groups, words) a minute. `seconds` must be at least 1.
int PerMinute(int units, int seconds);

/// 0 to 100; none while no key was counted.
std::optional<int> RatePercent(int correctKeys, int totalKeys);

} // namespace DrillFigures
