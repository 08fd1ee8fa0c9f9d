#include "Pictures.h"
#include "SkinFile.h"
#include "Theme.h"
#include "ui/shell/MenuPictures.h"
#include "ui/skin/ReadyPictures.h"

#include <QBuffer>
#include <QCommandLineParser>
#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <algorithm>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

int Fail(const QString &problem)
{
    std::fprintf(stderr, "quorvex-make-skin: %s\n", qPrintable(problem));
    return 1;
}

bool LoadFonts(const QString &folder)
{
    const QDir fonts(folder);
    return QFontDatabase::addApplicationFont(fonts.filePath(u"LiberationSans-Regular.ttf"_s)) >= 0 &&
           QFontDatabase::addApplicationFont(fonts.filePath(u"LiberationSans-Bold.ttf"_s)) >= 0;
}

QByteArray EncodePng(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

bool WriteFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// The program's icon in the sizes that desktops ask for, `<side>.png`; what went wrong, or an empty text.
QString WriteIcons(const QString &folder, const PictureList &pictures)
{
    const auto icon = std::find_if(pictures.begin(), pictures.end(),
                                   [](const Picture &picture) { return picture.name == "APP_ICON"_L1; });
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QString path = QDir(folder).filePath(u"%1.png"_s.arg(side));
        if (!WriteFile(path, EncodePng(RenderPicture(*icon, qreal(side) / icon->size.width()))))
            return u"cannot write \"%1\""_s.arg(path);
    }
    return {};
}

PictureList MakeSkinPictures(const Theme &theme)
{
    PictureList list;
    AddBackground(list, theme);
    AddMainMenu(list, theme);
    AddMenuButtons(list, theme);
    AddTextButtons(list, theme);
    AddWindowButtons(list, theme);
    AddDialogFrame(list, theme);
    AddStatusIcons(list, theme);
    AddProgressBars(list, theme);
    AddTabStrips(list, theme);
    AddDrillPanels(list, theme);
    AddTestPanels(list, theme);
    AddArticlePanels(list, theme);
    AddTopList(list, theme);
    AddManagePages(list, theme);
    AddManageTabs(list, theme);
    AddKeyCaps(list, theme);
    AddKeyboards(list, theme);
    AddKeypads(list, theme);
    AddHands(list, theme);
    return list;
}

/// As the program would decode them, so that they look the same from both files.
QList<std::pair<QString, QImage>> DecodedMenuPictures(const QList<SkinPicture> &pictures)
{
    const QStringList menu = MenuPictures();
    QList<std::pair<QString, QImage>> decoded;
    for (const SkinPicture &picture : pictures) {
        if (picture.scale == 1 && menu.contains(picture.name))
            decoded.append({picture.name, QImage::fromData(picture.png, "PNG")});
    }
    return decoded;
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Draws the skin library and the program's own pictures."_s);
    parser.addHelpOption();
    parser.addOptions({
        {u"theme"_s, u"The theme file."_s, u"file"_s},
        {u"fonts"_s, u"The folder of the Liberation fonts."_s, u"folder"_s},
        {u"library"_s, u"The skin library to write."_s, u"file"_s},
        {u"program-pictures"_s, u"The folder for the program's own pictures."_s, u"folder"_s},
        {u"icons"_s, u"The folder for the program's icon in the sizes that desktops use."_s, u"folder"_s},
        {u"dump"_s, u"A folder that also gets every picture of the skin as a file, to look at."_s,
         u"folder"_s},
    });
    parser.process(application);

    Theme theme;
    if (!theme.Load(parser.value(u"theme"_s)))
        return Fail(theme.Problems().join(u'\n'));
    if (!LoadFonts(parser.value(u"fonts"_s)))
        return Fail(u"no Liberation Sans in \"%1\""_s.arg(parser.value(u"fonts"_s)));

    const PictureList skin = MakeSkinPictures(theme);
    QList<SkinPicture> pictures;
    for (const Picture &picture : skin) {
        for (const int scale : {1, 2}) {
            pictures.append({picture.name, scale, EncodePng(RenderPicture(picture, scale))});
            if (parser.isSet(u"dump"_s)) {
                const QString name = scale == 1 ? u"%1.png"_s : u"%1@2x.png"_s;
                WriteFile(QDir(parser.value(u"dump"_s)).filePath(name.arg(picture.name)),
                          pictures.constLast().png);
            }
        }
    }
    const PictureList own = MakeProgramPictures(theme);
    for (const Picture &picture : own) {
        for (const int scale : {1, 2}) {
            const QString name = scale == 1 ? u"%1.png"_s : u"%1@2x.png"_s;
            const QString path = QDir(parser.value(u"program-pictures"_s)).filePath(name.arg(picture.name));
            if (!WriteFile(path, EncodePng(RenderPicture(picture, scale))))
                return Fail(u"cannot write \"%1\""_s.arg(path));
        }
    }
    if (parser.isSet(u"icons"_s)) {
        if (const QString problem = WriteIcons(parser.value(u"icons"_s), own); !problem.isEmpty())
            return Fail(problem);
    }
    const QMap<QString, QColor> colors = theme.RuntimeColors();
    if (!theme.Problems().isEmpty())
        return Fail(u"in the theme:\n"_s + theme.Problems().join(u'\n'));
    const QString library = parser.value(u"library"_s);
    QString problem = WriteSkinFile(library, pictures, colors);
    if (problem.isEmpty())
        problem = ReadyPictures::Write(library, DecodedMenuPictures(pictures), colors);
    return problem.isEmpty() ? 0 : Fail(problem);
}
