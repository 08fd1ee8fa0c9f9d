#pragma once

#include <QString>

namespace Public_Function {

/// The module to practise at a level (see GetLevel), as the placement test suggests it: "Type Tutorial" to
/// "中文测试 同声录入"; an empty text for a number that is no level.
QString GetModuleName(int level);
/// The same, as the page of a user's records suggests it.
QString GetPracticeModuleName(int level);

} // namespace Public_Function
