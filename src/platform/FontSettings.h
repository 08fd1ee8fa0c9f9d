#pragma once

#include <future>

namespace Public_Function {

/// Begins to read the system's font settings beside the program's own work, where reading them takes long:
/// Qt else does so when the first font is loaded. To be called first of all; the result is to be kept until
/// the program ends.
[[nodiscard]] std::future<void> ReadFontSettingsAhead();

} // namespace Public_Function
