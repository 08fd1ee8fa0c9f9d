#pragma once

#include "print/PrintModule.h"

#include <functional>

namespace Public_Function {

/// Prints a plain text on the default printer. The printing system is loaded and asked for a printer only
/// here: one that does not answer must not hold up anything else.
PrintOutcome PrintText(const QString &text, const QString &title);

/// The same, as a PDF into the file with this native path; empty: on the default printer.
PrintOutcome PrintToFile(const QString &text, const QString &title, const QString &nativePath);

/// Where the library that prints is looked for.
QString PrintModulePath();

/// Takes what would be printed, for tests; empty: the printer gets it.
void SetTextPrinter(std::function<PrintOutcome(const QString &text, const QString &title)> printer);

} // namespace Public_Function
