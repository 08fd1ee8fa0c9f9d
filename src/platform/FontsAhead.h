#pragma once

#include <QString>
#include <future>

namespace Public_Function {

/// Begins to read the system's font settings and the fonts in a folder (a native path) beside the program's
/// own work, where that takes long: Qt else does so when the first font is loaded. The system remembers what
/// is in the fonts from one start to the next. May be called before there is an application object. True,
/// when it is done, says that the fonts need not be added any more; until then Qt must not be asked for a
/// font.
[[nodiscard]] std::future<bool> ReadFontsAhead(const QString &folder);

} // namespace Public_Function
