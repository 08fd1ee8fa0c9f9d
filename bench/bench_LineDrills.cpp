#include "WindowBenchmarks.h"
#include "core/shell/Public_Define.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "support/DictionaryBytes.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/drills/frmEn_KeyTrain_Advanced.h"
#include "ui/drills/frmEn_WordTrain.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Item[] = "asdfjkl; ";

/// A line drill on a screen of 1024 x 768, in the middle of a lesson of so many items: the key drill for
/// seniors, or the word drill with or without explanations.
class LineDrillUnderTest
{
public:
    enum Kind { Senior, Words, ExplainedWords };

    explicit LineDrillUnderTest(const benchmark::State &state)
        : m_install(u"Ann"_s)
    {
        const auto kind = static_cast<Kind>(state.range(0));
        const auto items = static_cast<int>(state.range(1));
        Shared().ScreenRect = QRect(0, 0, 1024, 768);
        SettingFile settings(Public_Function::SettingFilePath());
        settings.Set(u"English"_s, u"KeyTrain_Index"_s, items / 2);
        settings.Set(u"English"_s, u"WordTrain_Index"_s, items / 2);
        settings.Set(u"English"_s, u"WordTrain_ShowExplanation"_s, kind == ExplainedWords ? 1 : 0);
        settings.Save();
        if (kind == Senior) {
            m_install.Write(u"Data/English/T_Character/Standard/00.txt"_s,
                            "Bench\n" + QByteArray(Item).repeated(items));
            Show<frmEn_KeyTrain_Advanced>();
        } else {
            WriteDictionary(items);
            Show<frmEn_WordTrain>();
        }
    }

    /// Presses and releases the next key of the lesson, or a wrong one; begins again where the lesson ends.
    void Press(bool right)
    {
        const QChar typed = right ? QChar::fromLatin1(Item[m_next++ % (sizeof Item - 1)]) : QChar(u'q');
        const int code = typed.toUpper().unicode();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, code, Qt::NoModifier, QString(typed));
            QCoreApplication::sendEvent(m_drill.get(), &event);
        }
    }

private:
    template <typename Drill>
    void Show()
    {
        m_answers.answer = Public_Function::MessageNo;
        m_drill = std::make_unique<Drill>(m_navigator, nullptr);
        m_drill->setAttribute(Qt::WA_DeleteOnClose, false);
        m_drill->ShowDrill();
        QCoreApplication::processEvents();
    }

    void WriteDictionary(int words)
    {
        const QString path = u"Data/English/T_Word/Dictionary/TOEFL"_s;
        QByteArray list;
        for (int word = 1; word <= words; ++word)
            list += ListRecord(word, QByteArray(Item).chopped(1), 1);
        m_install.Write(path + u".ID"_s, list);
        WriteEntryFile(m_install.Native(path + u".Dat"_s), {});
        WritableDatabase(m_install.Native(path + u".Dat"_s))
            .Run("INSERT INTO entry WITH RECURSIVE number(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM number "
                 "LIMIT " +
                 QByteArray::number(words) +
                 ") SELECT x, '% n. ' || char(10) || '# what the word ' || x || ' means' FROM number");
    }

    FakeServices m_services;
    SkinnedInstall m_install;
    FakeNavigator m_navigator;
    FakeAnswers m_answers;
    std::unique_ptr<DrillWindow> m_drill;
    std::size_t m_next = 0;
};

void BM_LineKey(benchmark::State &state)
{
    LineDrillUnderTest drill(state);
    for (auto _ : state)
        drill.Press(state.range(2) != 0);
}

void BM_LineKeyAndPaint(benchmark::State &state)
{
    LineDrillUnderTest drill(state);
    for (auto _ : state) {
        drill.Press(state.range(2) != 0);
        QCoreApplication::processEvents();
    }
}

void Drills(benchmark::internal::Benchmark *bench)
{
    bench->ArgNames({"drill", "items", "right"})->Iterations(4000)->Unit(benchmark::kMicrosecond);
    for (const int right : {0, 1}) {
        bench->Args({LineDrillUnderTest::Senior, 1000, right});
        bench->Args({LineDrillUnderTest::Words, 1000, right});
        bench->Args({LineDrillUnderTest::Words, 1'000'000, right});
        bench->Args({LineDrillUnderTest::ExplainedWords, 1'000'000, right});
    }
}
BENCHMARK(BM_LineKey)->Apply(Drills);
BENCHMARK(BM_LineKeyAndPaint)->Apply(Drills);

} // namespace

int main(int argc, char **argv)
{
    return RunWindowBenchmarks(argc, argv);
}
