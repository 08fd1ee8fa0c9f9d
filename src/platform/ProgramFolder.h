#pragma once

#include <QString>

namespace Public_Function {

/// The native path of the folder in which the running program's file lies, links resolved, before there is an
/// application object to ask. Empty where the system does not tell.
QString ProgramFolder();

} // namespace Public_Function
