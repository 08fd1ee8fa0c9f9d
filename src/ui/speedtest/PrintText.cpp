#include "ui/speedtest/PrintText.h"

#include "core/shell/Public_Define.h"
#include "platform/Paths.h"
#include "ui/skin/Fonts.h"

#include <QLibrary>

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

QString Public_Function::PrintModulePath()
{
    return NativePath(Shared().InstallDir + "libquorvex_print.so"_L1);
}

Public_Function::PrintOutcome Public_Function::PrintToFile(const QString &text, const QString &title,
                                                           const QString &nativePath)
{
    QLibrary module(PrintModulePath());
    const auto print = reinterpret_cast<decltype(&QuorvexPrint)>(module.resolve("QuorvexPrint"));
    if (!print)
        return PrintOutcome::NoModule;
    QFont font = InterfaceFont(PrintedPoints);
    // Pixels are those of a screen; on paper the size is in points.
    font.setPointSizeF(PrintedPoints);
    return print(text, title, font, nativePath);
}

Public_Function::PrintOutcome Public_Function::PrintText(const QString &text, const QString &title)
{
    return TextPrinter() ? TextPrinter()(text, title) : PrintToFile(text, title, QString());
}
