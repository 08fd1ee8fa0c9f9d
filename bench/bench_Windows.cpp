// From nothing to the painted window, for each window that a person waits for. The pictures are in the caches
// already, or have been forgotten before (`cold`), as for the first window after the start.

#include "WindowBenchmarks.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/drills/DlgEn_KeyLesson.h"
#include "ui/drills/frmEn_ArticleTrain.h"
#include "ui/drills/frmEn_KeyTrain_Advanced.h"
#include "ui/drills/frmEn_KeyTrain_Basic.h"
#include "ui/drills/frmEn_NumPad.h"
#include "ui/drills/frmEn_WordTrain.h"
#include "ui/records/DlgHighScore.h"
#include "ui/records/FrmUr_Manage.h"
#include "ui/shell/DlgUr_UserLogin.h"
#include "ui/shell/Frm_Main.h"
#include "ui/speedtest/DlgTestSelect.h"
#include "ui/speedtest/Frm_BeginTest.h"
#include "ui/speedtest/frmFreeType.h"
#include "ui/speedtest/frmTest.h"

#include <QPixmapCache>

namespace {

/// Makes a window and shows it.
using Opener = std::unique_ptr<QWidget> (*)(Navigator &);

template <typename Drill>
std::unique_ptr<QWidget> OpenDrill(Navigator &navigator)
{
    auto drill = std::make_unique<Drill>(navigator, nullptr);
    drill->ShowDrill();
    return drill;
}

template <typename Test>
std::unique_ptr<QWidget> OpenTest(Navigator &navigator)
{
    auto test = std::make_unique<Test>(navigator, nullptr);
    test->ShowTest();
    return test;
}

template <typename Dialog>
std::unique_ptr<QWidget> OpenDialog(Navigator &)
{
    auto dialog = std::make_unique<Dialog>(nullptr);
    dialog->show();
    return dialog;
}

std::unique_ptr<QWidget> OpenMenu(Navigator &navigator)
{
    auto menu = std::make_unique<Frm_Main>(navigator);
    menu->ShowMenu();
    return menu;
}

std::unique_ptr<QWidget> OpenPlacementTest(Navigator &navigator)
{
    auto test = std::make_unique<Frm_BeginTest>(navigator, nullptr);
    test->ShowTest(true);
    return test;
}

std::unique_ptr<QWidget> OpenLessonList(Navigator &)
{
    auto dialog = std::make_unique<DlgEn_KeyLesson>(nullptr);
    dialog->ShowKeyLesson();
    dialog->show();
    return dialog;
}

constexpr std::pair<const char *, Opener> Windows[]{
    {"menu", OpenMenu},
    {"login", OpenDialog<DlgUr_UserLogin>},
    {"junior", OpenDrill<frmEn_KeyTrain_Basic>},
    {"senior", OpenDrill<frmEn_KeyTrain_Advanced>},
    {"keypad", OpenDrill<frmEn_NumPad>},
    {"words", OpenDrill<frmEn_WordTrain>},
    {"text", OpenDrill<frmEn_ArticleTrain>},
    {"lessons", OpenLessonList},
    {"test", OpenTest<frmTest>},
    {"free typing", OpenTest<frmFreeType>},
    {"placement", OpenPlacementTest},
    {"choice of a test", OpenDialog<DlgTestSelect>},
    {"records", OpenDialog<FrmUr_Manage>},
    {"top list", OpenDialog<DlgHighScore>},
};

void Open(benchmark::State &state, Opener open, bool cold)
{
    const FakeServices services;
    const SkinnedInstall install(QStringLiteral("Ann"));
    QFile::link(qEnvironmentVariable("QUORVEX_INSTALL") + QStringLiteral("/Data"),
                install.Native(QStringLiteral("Data")));
    const FakeAnswers answers;
    FakeNavigator navigator;
    for ([[maybe_unused]] auto _ : state) {
        if (cold)
            QPixmapCache::clear();
        std::unique_ptr<QWidget> window = open(navigator);
        QCoreApplication::processEvents();
        state.PauseTiming();
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window.reset();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

} // namespace

int main(int argc, char **argv)
{
    for (const auto &[name, open] : Windows) {
        for (const bool cold : {false, true}) {
            const std::string title = std::string("Open/") + name + (cold ? "/cold" : "");
            benchmark::RegisterBenchmark(title.c_str(), Open, open, cold)->Unit(benchmark::kMillisecond);
        }
    }
    return RunWindowBenchmarks(argc, argv);
}
