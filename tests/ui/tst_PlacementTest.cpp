#include "core/speedtest/PlacementWords.h"
#include "support/WindowTest.h"
#include "ui/drills/ArticleBox.h"
#include "ui/speedtest/Frm_BeginTest.h"

using namespace Qt::Literals::StringLiterals;

class tst_PlacementTest : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        SetUp();
        PlatformServices().launcher = &m_launcher;
    }
    void cleanup() { TearDown(); }

    void CountsWords()
    {
        for (const auto &[text, words] :
             {std::pair(U"Hello, world.", 4), std::pair(U"Hello world", 1), std::pair(U"Hello world ", 2),
              std::pair(U"\u4F60\u597D", 2), std::pair(U"a1 \u4F60b\U0001F600\r\n", 4), std::pair(U"", 0),
              std::pair(U"don't (stop)\r\n", 6)})
            QCOMPARE(Public_Function::CountWords(text), words);
    }

    void TypesAnEnglishText()
    {
        WriteText("English/T_Article/Adage/1.txt", "One, two.\r\n\r\nThree four\r\n");
        Open();
        QCOMPARE(Box(0), u"One, two.\nThree four\n\n"_s);
        Type(u"One,"_s);
        Press(Qt::Key_Return); // a space is expected
        Type(u"tzz"_s);
        Press(Qt::Key_Backspace);
        Press(Qt::Key_Tab);
        QCOMPARE(Box(1), u"One, tz\n\n\n"_s);

        Press(Qt::Key_Pause);
        QCOMPARE(Text("labPromptMsg"), u"Suspended by PAUSE/BREAK"_s);
        m_services->clock.Move(100);
        Type(u"x"_s);
        QCOMPARE(Box(1), u"One, tz\n\n\n"_s);
        Press(Qt::Key_Pause);
        QCOMPARE(Text("labPromptMsg"), u"Input by the current key suggested"_s);
        Type(u"o. "_s); // Space is Enter at the line's end
        m_services->clock.Move(6);
        QCOMPARE(Status().join(u' '), u"0:00:06 40WPM 81% 66 %"_s);

        // Twenty of the 22 were right; six words in ten seconds.
        AtResult(Qt::Key_Escape);
        Type(u"Three four"_s);
        m_services->clock.Move(4);
        Press(Qt::Key_Return);
        QTRY_VERIFY(m_window.isNull());
        QCOMPARE(m_result, u"Result:\n\n    Speed36   Correct Rate90%|Suggestion:Type Essay Training"_s);
        QCOMPARE(m_navigator->menuShown, 1);
        QCOMPARE(m_install->Entries(u"Users/Ann"_s), QStringList());
    }

    void OpensWhatIsSuggested()
    {
        WriteText("English/T_Article/Adage/1.txt", "a b c d e f g h i j k l m n o p q r s t\r\n");
        // The seconds that the text takes, and where that leads.
        for (const auto &[seconds, drills, game] : {std::tuple(120.0, QList{DrillKind::KeyJunior}, QString()),
                                                    std::tuple(48.0, QList{DrillKind::Word}, QString()),
                                                    std::tuple(3.0, QList<DrillKind>(), u"Missile.exe"_s)}) {
            m_navigator.emplace();
            m_launcher.asked.clear();
            Open();
            Type(u"a b c d e f g h i j k l m n o p q r s t"_s);
            m_services->clock.Move(seconds);
            AtResult(Qt::Key_Return);
            Press(Qt::Key_Return);
            QTRY_VERIFY(m_window.isNull());
            QCOMPARE(m_navigator->opened, drills);
            QCOMPARE(m_launcher.asked.section(u'/', -1), game);
            QCOMPARE(m_navigator->menuShown, drills.isEmpty() ? 1 : 0);
        }
    }

    void BeginsAgain()
    {
        WriteText("English/Professional/Law/1.txt", "Law\r\n");
        Open();
        Type(u"Laz"_s);
        AtResult({}, "XBtnAgain");
        Click("XBtn_Finish");
        QCOMPARE(Box(1), u"\n\n\n"_s);
        QCOMPARE(Status().join(u' '), u"0:00:01 0WPM 0% 0 %"_s);
    }

    void SaysThatThereIsNoText()
    {
        WriteText("English/T_Article/Adage/1.txt", "\r\n \r\n");
        auto *window = new Frm_BeginTest(*m_navigator, &m_owner);
        m_window = window;
        window->ShowTest(true);
        QTRY_VERIFY(m_window.isNull());
        QCOMPARE(m_messages->texts,
                 QStringList{u"There is no test data, data restoration, or re-installe Quorvex."_s});
        QCOMPARE(m_navigator->menuShown, 1);
    }

private:
    void WriteText(const char *path, const QByteArray &text)
    {
        m_install->Write(u"Data/"_s + QLatin1StringView(path), text);
    }
    void Open() { OpenBy<Frm_BeginTest>(&Frm_BeginTest::ShowTest, true); }
    /// At the next result dialog notes its figures, then presses a key or a button.
    void AtResult(std::optional<Qt::Key> key, const char *button = nullptr)
    {
        InDialog([this, key, button](QWidget *dialog) {
            m_result = dialog->findChild<QLabel *>(u"LabResult"_s)->text() + u'|' +
                       dialog->findChild<QLabel *>(u"LabSuggestion"_s)->text();
            if (button)
                dialog->findChild<QAbstractButton *>(QLatin1StringView(button))->click();
            else
                QTest::keyClick(dialog, *key);
        });
    }
    QString Box(int index) const { return Part<ArticleBox>(u"RTB%1"_s.arg(index))->Text(); }

    FakeLauncher m_launcher;
    QString m_result;
};

QTEST_MAIN(tst_PlacementTest)
#include "tst_PlacementTest.moc"
