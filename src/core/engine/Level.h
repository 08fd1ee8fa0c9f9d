#pragma once

#include <QString>

/// What a text is typed with.
enum class InputKind { None = 0, Pinyin = 1, Other = 2 };

namespace Public_Function {

/// The level of a typist, 0 to 13. `speed` is in words a minute (with `None`, keys divided by 5; with an
/// input method, characters); `rate` in percent.
int GetLevel(InputKind kind, float speed, float rate);

/// "Fresher" to "Expert"; an empty text for a number that is no level.
QString GetLevelName(int level);

} // namespace Public_Function
