#include "print/PrintModule.h"

#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>

using Public_Function::PrintOutcome;

PrintOutcome QuorvexPrint(const QString &text, const QString &title, const QFont &font, const QString &file)
{
    // Without a default printer a printer object looks usable, and what is printed on it is lost.
    const QString name = file.isEmpty() ? QPrinterInfo::defaultPrinterName() : QString();
    if (file.isEmpty() && name.isEmpty())
        return PrintOutcome::NoPrinter;
    QPrinter printer(QPrinterInfo::printerInfo(name), QPrinter::HighResolution);
    if (!file.isEmpty())
        printer.setOutputFileName(file);
    else if (!printer.isValid() || printer.outputFormat() != QPrinter::NativeFormat)
        return PrintOutcome::Failed;
    printer.setDocName(title);
    QTextDocument document;
    document.setDefaultFont(font);
    document.setPlainText(text);
    document.print(&printer);
    const bool taken =
        printer.printerState() != QPrinter::Error && printer.printerState() != QPrinter::Aborted;
    return taken ? PrintOutcome::Printed : PrintOutcome::Failed;
}
