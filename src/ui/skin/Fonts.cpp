#include "ui/skin/Fonts.h"

#include "core/shell/Public_Define.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Signs = "Quorvex Signs"_L1; ///< a family that only `Fonts` has

QFont FontOfPixels(qreal pixels, bool bold)
{
    // Liberation Sans has Arial's metrics; the others stand in for the characters that it lacks. The signs
    // are those of the Chinese font, which is large and so comes after them.
    QFont font({u"Liberation Sans"_s, u"Arial"_s, Signs, u"WenQuanYi Micro Hei"_s, u"DejaVu Sans"_s});
    font.setPixelSize(qMax(1, qRound(pixels)));
    font.setBold(bold);
    return font;
}

void AddFonts()
{
    for (const auto suffix : {"ttf"_L1, "ttc"_L1}) {
        for (const QString &file : Public_Function::ListFiles(Shared().InstallDir + u"Fonts\\"_s, suffix))
            QFontDatabase::addApplicationFont(Public_Function::NativePath(file));
    }
}

} // namespace

void Public_Function::LoadFonts(bool areKnown)
{
    // A platform's plugin may have asked for fonts before they were read, and then Qt does not know them.
    if (!areKnown || !QFontDatabase::hasFamily(Signs))
        AddFonts();
    QGuiApplication::setFont(InterfaceFont(9));
}

QFont Public_Function::InterfaceFont(qreal points, bool bold)
{
    return FontOfPixels(points * 96 / 72, bold);
}

QFont Public_Function::PhoneticFont(qreal points)
{
    QFont font = InterfaceFont(points);
    font.setFamilies(QStringList{u"Quorvex Phonetic"_s, u"DejaVu Sans"_s} + font.families());
    return font;
}

QFont Public_Function::DisplayFont(int scaledPoints, bool bold)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return FontOfPixels(scaledPoints * (screen ? screen->logicalDotsPerInch() : 96) / 72, bold);
}
