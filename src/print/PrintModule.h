#pragma once

#include <QString>

class QFont;

namespace Public_Function {

enum class PrintOutcome { Printed, NoPrinter, NoModule, Failed };

} // namespace Public_Function

/// The one entry of the library that prints, which lies beside the program. It is loaded when somebody
/// prints: the printing system would make every start longer. The text goes to the default printer, or as a
/// PDF into `file` where that is not empty.
extern "C" Q_DECL_EXPORT Public_Function::PrintOutcome QuorvexPrint(const QString &text, const QString &title,
                                                                    const QFont &font, const QString &file);
