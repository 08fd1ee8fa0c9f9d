#include "WindowBenchmarks.h"
#include "core/shell/Public_Define.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/speedtest/frmTest.h"
#include "ui/widgets/TypingBox.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The speed test on a screen of 1024 x 768, with a text of 10,000 lines.
class SpeedTestUnderTest
{
public:
    explicit SpeedTestUnderTest(int displayMode)
        : m_install(u"Ann"_s)
    {
        Shared().ScreenRect = QRect(0, 0, 1024, 768);
        Shared().TestDisplayMode[0] = displayMode;
        QByteArray text;
        for (int i = 0; i < 10'000; ++i)
            text += "asdfjkl; asdfjkl; asdfjkl; asdf\n";
        m_install.Write(u"Data/English/E_General/lunch.txt"_s, text);
        m_test = std::make_unique<frmTest>(m_navigator, nullptr);
        m_test->setAttribute(Qt::WA_DeleteOnClose, false);
        m_test->ShowTest();
        m_box = m_test->findChild<TypingBox *>();
        QCoreApplication::processEvents();
    }

    /// Presses and releases the next key of the text, every third time a wrong one.
    void Press()
    {
        static constexpr char keys[] = "asdfjkl; asdfjkl; asdfjkl; asdf";
        const bool wrong = m_next % 3 == 2;
        const QChar typed = wrong ? QChar(u'q') : QChar::fromLatin1(keys[m_next % 31]);
        ++m_next;
        const int code = typed.toUpper().unicode();
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, QString(typed));
        QCoreApplication::sendEvent(m_box, &press);
        QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier, QString(typed));
        QCoreApplication::sendEvent(m_box, &release);
    }

private:
    FakeServices m_services;
    SkinnedInstall m_install;
    FakeNavigator m_navigator;
    FakeAnswers m_answers;
    std::unique_ptr<frmTest> m_test;
    TypingBox *m_box = nullptr;
    std::size_t m_next = 0;
};

void BM_TestKey(benchmark::State &state)
{
    SpeedTestUnderTest test(static_cast<int>(state.range(0)));
    for (auto _ : state)
        test.Press();
}
BENCHMARK(BM_TestKey)->ArgName("mode")->DenseRange(0, 3)->Iterations(4000);

void BM_TestKeyAndPaint(benchmark::State &state)
{
    SpeedTestUnderTest test(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        test.Press();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(BM_TestKeyAndPaint)->ArgName("mode")->DenseRange(0, 3)->Iterations(4000);

} // namespace

int main(int argc, char **argv)
{
    return RunWindowBenchmarks(argc, argv);
}
