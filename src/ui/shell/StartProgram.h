#pragma once

class QString;

namespace Public_Function {

/// Starts a program below the install folder, such as "game\\rabbit.Exe", and does not wait for it. When that
/// is impossible a message says which one.
void StartShippedProgram(const QString &relativePath);

} // namespace Public_Function
