#include "ui/speedtest/PrintText.h"

#include "ui/skin/Fonts.h"

#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal PrintedPoints = 11;

std::function<Public_Function::PrintOutcome(const QString &, const QString &)> &TextPrinter()
{
    static std::function<Public_Function::PrintOutcome(const QString &, const QString &)> printer;
    return printer;
}

} // namespace

void Public_Function::SetTextPrinter(
    std::function<PrintOutcome(const QString &text, const QString &title)> printer)
{
    TextPrinter() = std::move(printer);
}

bool Public_Function::PrintOn(QPrinter &printer, const QString &text, const QString &title)
{
    printer.setDocName(title);
    QTextDocument document;
    QFont font = InterfaceFont(PrintedPoints);
    // Pixels are those of a screen; on paper the size is in points.
    font.setPointSizeF(PrintedPoints);
    document.setDefaultFont(font);
    document.setPlainText(text);
    document.print(&printer);
    return printer.printerState() != QPrinter::Error && printer.printerState() != QPrinter::Aborted;
}

Public_Function::PrintOutcome Public_Function::PrintText(const QString &text, const QString &title)
{
    if (TextPrinter())
        return TextPrinter()(text, title);
    // Without a default printer a printer object looks usable, and what is printed on it is lost.
    const QString name = QPrinterInfo::defaultPrinterName();
    if (name.isEmpty())
        return PrintOutcome::NoPrinter;
    QPrinter printer(QPrinterInfo::printerInfo(name), QPrinter::HighResolution);
    if (!printer.isValid() || printer.outputFormat() != QPrinter::NativeFormat)
        return PrintOutcome::Failed;
    return PrintOn(printer, text, title) ? PrintOutcome::Printed : PrintOutcome::Failed;
}
