#include "WindowBenchmarks.h"
#include "core/drills/Article.h"
#include "core/shell/Public_Define.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/drills/frmEn_ArticleTrain.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char articleLine[] = "asdfjkl; asdfjkl; asdfjkl; asdf";

QByteArray ArticleOf(int megabytes)
{
    return (QByteArray(articleLine) + '\n').repeated(megabytes * (1 << 15));
}

/// The text drill on a screen of 1024 x 768.
class TextDrillUnderTest
{
public:
    TextDrillUnderTest(int form, int megabytes)
        : m_install(u"Ann"_s)
    {
        Shared().ScreenRect = QRect(0, 0, 1024, 768);
        m_install.Write(u"Data/English/T_Article/Adage/1.txt"_s, ArticleOf(megabytes));
        SettingFile settings(Public_Function::SettingFilePath());
        settings.Set(u"English"_s, u"ArticleTrain_FormType"_s, form);
        settings.Save();
    }

    void Open()
    {
        m_drill = std::make_unique<frmEn_ArticleTrain>(m_navigator, nullptr);
        m_drill->setAttribute(Qt::WA_DeleteOnClose, false);
        m_drill->ShowDrill();
        QCoreApplication::processEvents();
    }
    void Close() { m_drill.reset(); }

    /// Presses and releases the next key, every seventh time a wrong one; every line ends like that of the
    /// article, as the boxes are wider.
    void Press()
    {
        const std::size_t place = m_next++ % sizeof articleLine;
        QChar typed = QChar::fromLatin1(articleLine[place]);
        int code = typed.toUpper().unicode();
        if (typed.isNull()) {
            typed = u'\r';
            code = Qt::Key_Return;
        } else if (m_next % 7 == 0) {
            typed = u'q';
            code = Qt::Key_Q;
        }
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
    std::unique_ptr<frmEn_ArticleTrain> m_drill;
    std::size_t m_next = 0;
};

void BM_LoadArticle(benchmark::State &state)
{
    const TestInstall install;
    const QString file = install.Write(u"a.txt"_s, ArticleOf(10));
    for (auto _ : state) {
        Article article;
        benchmark::DoNotOptimize(article.InitArticleData(file));
    }
}
BENCHMARK(BM_LoadArticle)->Unit(benchmark::kMillisecond);

void BM_OpenDrill(benchmark::State &state)
{
    TextDrillUnderTest test(5, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        test.Open();
        state.PauseTiming();
        test.Close();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_OpenDrill)->ArgName("MB")->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond)->Iterations(10);

void BM_ArticleKey(benchmark::State &state)
{
    TextDrillUnderTest test(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    test.Open();
    for (auto _ : state)
        test.Press();
}
BENCHMARK(BM_ArticleKey)->ArgNames({"form", "MB"})->ArgsProduct({{3, 4, 5}, {1, 10}})->Iterations(4000);

void BM_ArticleKeyAndPaint(benchmark::State &state)
{
    TextDrillUnderTest test(static_cast<int>(state.range(0)), 1);
    test.Open();
    for (auto _ : state) {
        test.Press();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(BM_ArticleKeyAndPaint)->ArgName("form")->DenseRange(3, 5)->Iterations(4000);

} // namespace

int main(int argc, char **argv)
{
    return RunWindowBenchmarks(argc, argv);
}
