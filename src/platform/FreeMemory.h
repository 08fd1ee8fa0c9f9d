#pragma once

namespace Public_Function {

/// Gives back to the system what was freed but is kept for later, where the system's library keeps it. To be
/// called after megabytes were let go, when nothing is urgent.
void GiveBackFreeMemory();

} // namespace Public_Function
