#include "WindowBenchmarks.h"
#include "core/shell/Public_Define.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/drills/frmEn_KeyTrain_Basic.h"
#include "ui/drills/frmEn_NumPad.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Junior
{
    using Window = frmEn_KeyTrain_Basic;
    static constexpr char folder[] = "Standard";
    static constexpr char keys[] = "asdfjkl;";
    static constexpr char wrong = 'q';
    static constexpr Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

struct Keypad
{
    using Window = frmEn_NumPad;
    static constexpr char folder[] = "Numpad";
    static constexpr char keys[] = "45678+9.";
    static constexpr char wrong = '1';
    static constexpr Qt::KeyboardModifiers modifiers = Qt::KeypadModifier;
};

/// A key drill on a screen of 1024 x 768, with a lesson of 1,000 groups of eight keys.
template <typename Drill>
class DrillUnderTest
{
public:
    DrillUnderTest()
        : m_install(u"Ann"_s)
    {
        Shared().ScreenRect = QRect(0, 0, 1024, 768);
        QByteArray lesson("Bench\n");
        for (int i = 0; i < 1000; ++i)
            lesson += QByteArray(Drill::keys) + ' ';
        m_install.Write(u"Data/English/T_Character/%1/00.txt"_s.arg(QLatin1StringView(Drill::folder)),
                        lesson);
        m_drill = std::make_unique<typename Drill::Window>(m_navigator, nullptr);
        m_drill->setAttribute(Qt::WA_DeleteOnClose, false);
        m_drill->ShowDrill();
        QCoreApplication::processEvents();
    }

    /// Presses and releases the next key of the lesson, or a wrong one.
    void Press(bool right)
    {
        const QChar typed = QChar::fromLatin1(right ? Drill::keys[m_next++ % 8] : Drill::wrong);
        const int code = typed.toUpper().unicode();
        QKeyEvent press(QEvent::KeyPress, code, Drill::modifiers, QString(typed));
        QCoreApplication::sendEvent(m_drill.get(), &press);
        QKeyEvent release(QEvent::KeyRelease, code, Drill::modifiers, QString(typed));
        QCoreApplication::sendEvent(m_drill.get(), &release);
    }

private:
    FakeServices m_services;
    SkinnedInstall m_install;
    FakeNavigator m_navigator;
    FakeAnswers m_answers;
    std::unique_ptr<typename Drill::Window> m_drill;
    std::size_t m_next = 0;
};

template <typename Drill>
void BM_JudgedKey(benchmark::State &state)
{
    DrillUnderTest<Drill> drill;
    for (auto _ : state)
        drill.Press(state.range(0) != 0);
}
BENCHMARK_TEMPLATE(BM_JudgedKey, Junior)->ArgName("right")->Arg(0)->Arg(1)->Iterations(4000);
BENCHMARK_TEMPLATE(BM_JudgedKey, Keypad)->ArgName("right")->Arg(0)->Arg(1)->Iterations(4000);

template <typename Drill>
void BM_JudgedKeyAndPaint(benchmark::State &state)
{
    DrillUnderTest<Drill> drill;
    for (auto _ : state) {
        drill.Press(state.range(0) != 0);
        QCoreApplication::processEvents();
    }
}
BENCHMARK_TEMPLATE(BM_JudgedKeyAndPaint, Junior)->ArgName("right")->Arg(0)->Arg(1)->Iterations(4000);
BENCHMARK_TEMPLATE(BM_JudgedKeyAndPaint, Keypad)->ArgName("right")->Arg(0)->Arg(1)->Iterations(4000);

} // namespace

int main(int argc, char **argv)
{
    return RunWindowBenchmarks(argc, argv);
}
