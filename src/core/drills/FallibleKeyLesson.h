#pragma once

#include <QString>

namespace Public_Function {

/// Writes the lesson `02.txt` of the Standard folder anew: nine times six keys drawn from `mistakes`, which
/// holds each missed key as often as it was missed, each six twice forwards and twice backwards. Without a
/// mistake the present file stays. False when nothing was written; the present file is then whole.
bool WriteFallibleKeyLesson(const QString &mistakes);

} // namespace Public_Function
