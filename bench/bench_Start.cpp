// From the fonts to the painted menu, with nothing in the caches: what the program adds to the toolkit's own
// start.

#include "core/shell/Public_Define.h"
#include "platform/Paths.h"
#include "support/Fakes.h"
#include "ui/shell/Frm_Main.h"
#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/skin/StatusTexts.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPixmapCache>
#include <QScreen>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Tells when a window has been asked to paint; it has done so when that event is over.
class PaintWatcher final : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
    bool painted = false;
};

void StartToPaintedMenu(benchmark::State &state)
{
    FakeNavigator navigator;
    for ([[maybe_unused]] auto _ : state) {
        QFontDatabase::removeAllApplicationFonts();
        QPixmapCache::clear();
        Public_Function::LoadFonts();
        Public_Function::InitFontSizes(QGuiApplication::primaryScreen()->logicalDotsPerInch());
        Frm_Main menu(navigator);
        menu.ShowMenu();
        PaintWatcher watcher;
        menu.installEventFilter(&watcher);
        while (!watcher.painted)
            QCoreApplication::processEvents();
    }
}
BENCHMARK(StartToPaintedMenu)->Unit(benchmark::kMillisecond)->MinWarmUpTime(0.2);

void MenuRepaint(benchmark::State &state)
{
    FakeNavigator navigator;
    Frm_Main menu(navigator);
    menu.ShowMenu();
    QCoreApplication::processEvents();
    for ([[maybe_unused]] auto _ : state)
        menu.repaint();
}
BENCHMARK(MenuRepaint)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    // The benchmarks lie in bench/ beside the folder that the build has assembled.
    const QString install = QCoreApplication::applicationDirPath() + u"/../install"_s;
    Shared().InstallDir = Public_Function::ProductPath(install) + u'\\';
    Shared().ScreenRect = QRect(0, 0, 1024, 768);
    if (!SkinLibrary().IsUsable())
        qFatal("no skin in %s", qPrintable(install));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
