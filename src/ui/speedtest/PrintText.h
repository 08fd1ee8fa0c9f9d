#pragma once

#include <QString>
#include <functional>

class QPrinter;

namespace Public_Function {

enum class PrintOutcome { Printed, NoPrinter, Failed };

/// Prints a plain text on the default printer. The printing system is asked for a printer only here: one that
/// does not answer must not hold up anything else.
PrintOutcome PrintText(const QString &text, const QString &title);

/// Lays the text out in pages and sends it to that printer. False when the printer does not take it.
bool PrintOn(QPrinter &printer, const QString &text, const QString &title);

/// Takes what would be printed, for tests; empty: the printer gets it.
void SetTextPrinter(std::function<PrintOutcome(const QString &text, const QString &title)> printer);

} // namespace Public_Function
