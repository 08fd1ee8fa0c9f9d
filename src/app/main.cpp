#include "app/AppNavigator.h"
#include "app/FirstPaint.h"

#include "core/shell/Public_Define.h"
#include "platform/DBusInputMethod.h"
#include "platform/FontsAhead.h"
#include "platform/Paths.h"
#include "platform/ProgramFolder.h"
#include "platform/SdlSoundPlayer.h"
#include "platform/Services.h"
#include "platform/SingleInstance.h"
#include "platform/TerminationSignals.h"
#include "ui/shell/Frm_Main.h"
#include "ui/shell/InputMethodWatch.h"
#include "ui/shell/MenuPictures.h"
#include "ui/shell/ScreenFit.h"
#include "ui/shell/ShowMessage.h"
#include "ui/skin/Fonts.h"
#include "ui/skin/Png.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/skin/StatusTexts.h"

#include <QApplication>
#include <QPixmap>
#include <QPixmapCache>
#include <QScreen>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int PixmapCacheKilobytes = 64 * 1024;
constexpr std::chrono::milliseconds InputMethodPatience{50}; // what a bus that hangs may cost the start

/// The product form of a folder, ending in exactly one separator.
QString InstallDirOf(const QString &programFolder)
{
    QString folder = Public_Function::ProductPath(programFolder);
    if (!folder.endsWith(u'\\'))
        folder += u'\\';
    return folder;
}

/// An application object whose scale leaves room for the windows on the screen there is. One that must be
/// made again forgets the fonts that were read ahead for the first.
std::unique_ptr<QApplication> MakeApplication(int &argc, char **argv, std::future<bool> &fonts)
{
    auto application = std::make_unique<QApplication>(argc, argv);
    const double factor = ScaleToFit(QGuiApplication::primaryScreen()->size(),
                                     QGuiApplication::primaryScreen()->devicePixelRatio());
    if (factor != 1.0) {
        fonts = {}; // waits for them
        application.reset();
        ChangeScale(factor);
        application = std::make_unique<QApplication>(argc, argv);
    }
    return application;
}

void SayWhatIsMissing()
{
    if (SkinLibrary().IsUsable())
        return;
    Public_Function::ShowMessage(
        QObject::tr("The pictures are missing or damaged; windows are shown in plain colours:\n%1")
            .arg(Public_Function::NativePath(Shared().InstallDir + "Bitmap\\1024_CH.DLL"_L1)),
        u"Quorvex"_s, MessageIcon::Information, MessageButtons::Ok);
}

/// Closes what is open, innermost first, so that every window stores what it holds.
void EndProgram(Frm_Main *mainWindow)
{
    for (int depth = 0; depth < 16 && QApplication::activeModalWidget(); ++depth)
        QApplication::activeModalWidget()->close();
    mainWindow->close();
}

} // namespace

int main(int argc, char **argv)
{
    // The look must not depend on the desktop's own style.
    QApplication::setStyle(u"fusion"_s);
    QCoreApplication::setApplicationName(u"Quorvex"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(QUORVEX_VERSION));
    QGuiApplication::setDesktopFileName(u"quorvex"_s); // by which a desktop knows whose windows these are
    DBusInputMethod inputMethod;
    inputMethod.ChooseRunning(InputMethodPatience);
    std::future<bool> fonts;
    if (const QString folder = Public_Function::ProgramFolder(); !folder.isEmpty())
        fonts =
            Public_Function::ReadFontsAhead(Public_Function::NativePath(InstallDirOf(folder) + u"Fonts"_s));
    const std::unique_ptr<QApplication> application = MakeApplication(argc, argv, fonts);
    const bool areFontsKnown = fonts.valid() && fonts.get();

    QApplication::setWindowIcon(QPixmap::fromImage(Public_Function::OwnPicture(u":/message/APP_ICON.png"_s)));
    SingleInstance instance;
    if (!instance.IsFirst())
        return 0;
    Shared().InstallDir = InstallDirOf(QCoreApplication::applicationDirPath());
    Shared().HelpFile = Shared().InstallDir + u"Quorvex.chm"_s;
    QPixmapCache::setCacheLimit(PixmapCacheKilobytes);
    SkinLibrary::DecodeAhead(MenuPictures(), QGuiApplication::primaryScreen()->devicePixelRatio());
    Public_Function::LoadFonts(areFontsKnown);
    const QScreen *screen = QGuiApplication::primaryScreen();
    Public_Function::InitFontSizes(screen->logicalDotsPerInch());
    Shared().ScreenRect = QRect(QPoint(0, 0), screen->size());

    if (Shared().ScreenRect.width() < SmallestLayout.width()) {
        Public_Function::ShowMessage(u"Quorvex can't run in 1024*768, Please reset it and sartup again."_s,
                                     u"Quorvex"_s, MessageIcon::Error, MessageButtons::Ok);
        return 1;
    }

    SdlSoundPlayer sound;
    PlatformServices().sound = &sound;
    PlatformServices().inputMethod = &inputMethod;
    FollowInputMethod();
    PlatformServices().random.seed(std::random_device{}());
    AppNavigator navigator;
    Frm_Main mainWindow(navigator);
    navigator.SetMainWindow(&mainWindow);
    const TerminationSignals termination([&mainWindow] { EndProgram(&mainWindow); });

    // The login runs its own loop; the menu must be on the screen before.
    const FirstPaint login(&mainWindow, [&mainWindow] {
        SayWhatIsMissing();
        mainWindow.UserLogin();
    });
    mainWindow.ShowMenu();
    // While the display server is busy with the window.
    instance.SetOnSecondStart([&navigator] { navigator.ComeForward(); });
    return QApplication::exec();
}
