#include "core/shell/Public_Define.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/drills/frmEn_KeyTrain_Basic.h"

#include <QApplication>
#include <QKeyEvent>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The junior key drill on a screen of 1024 x 768, with a lesson of 1,000 groups of eight keys.
class DrillUnderTest
{
public:
    DrillUnderTest()
        : m_install(u"Ann"_s)
    {
        Shared().ScreenRect = QRect(0, 0, 1024, 768);
        QByteArray lesson("Bench\n");
        for (int i = 0; i < 1000; ++i)
            lesson += "asdfjkl; ";
        m_install.Write(u"Data/English/T_Character/Standard/00.txt"_s, lesson);
        m_drill = std::make_unique<frmEn_KeyTrain_Basic>(m_navigator, nullptr);
        m_drill->setAttribute(Qt::WA_DeleteOnClose, false);
        m_drill->ShowDrill();
        QCoreApplication::processEvents();
    }

    /// Presses and releases the next key of the lesson, or a wrong one.
    void Press(bool right)
    {
        static constexpr char keys[] = "asdfjkl;";
        const QChar typed = right ? QChar::fromLatin1(keys[m_next++ % 8]) : QChar(u'q');
        const int code = typed.toUpper().unicode();
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, QString(typed));
        QCoreApplication::sendEvent(m_drill.get(), &press);
        QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier, QString(typed));
        QCoreApplication::sendEvent(m_drill.get(), &release);
    }

private:
    FakeServices m_services;
    SkinnedInstall m_install;
    FakeNavigator m_navigator;
    FakeAnswers m_answers;
    std::unique_ptr<frmEn_KeyTrain_Basic> m_drill;
    std::size_t m_next = 0;
};

void BM_JudgedKey(benchmark::State &state)
{
    DrillUnderTest drill;
    for (auto _ : state)
        drill.Press(state.range(0) != 0);
}
BENCHMARK(BM_JudgedKey)->ArgName("right")->Arg(0)->Arg(1)->Iterations(4000);

void BM_JudgedKeyAndPaint(benchmark::State &state)
{
    DrillUnderTest drill;
    for (auto _ : state) {
        drill.Press(state.range(0) != 0);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(BM_JudgedKeyAndPaint)->ArgName("right")->Arg(0)->Arg(1)->Iterations(4000);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // The benchmarks lie in bench/ beside the folder that the build has assembled.
    if (!qEnvironmentVariableIsSet("QUORVEX_INSTALL"))
        qputenv("QUORVEX_INSTALL", QFile::encodeName(app.applicationDirPath() + "/../install"_L1));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
